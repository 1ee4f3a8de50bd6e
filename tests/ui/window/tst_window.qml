import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    function init(): void {
        openWindow([]);
    }

    function test_theLeastWindowHoldsTheLargestSheetBelowTheHeader(): void {
        verify(root.app.minimumWidth >= 700);
        verify(root.app.width >= root.app.minimumWidth);
        verify(root.app.height >= root.app.minimumHeight);
        root.app.width = root.app.minimumWidth;
        root.app.height = root.app.minimumHeight;
        openSheet("editorSheet");
        const frame = place(form("editorSheet"));
        verify(frame.left >= 0 && frame.top >= 0);
        verify(frame.right <= root.app.width && frame.bottom <= root.app.height);
        const header = place(shownItems(root.view).find(item => item as HeaderView));
        verify(root.app.height - header.height >= 600);
    }

    function test_thePageFollowsTheWindow(): void {
        root.app.width = 1100;
        root.app.height = 900;
        tryCompare(root.view, "width", 1100);
        compare(root.view.height, 900);
        openSheet("settingsSheet");
        root.app.width = 1000;
        tryVerify(() => Math.abs(place(form("settingsSheet")).left - 250) <= 1);
    }

    function test_theWindowClosesWithASheetOpen_data(): var {
        return [{
                "tag": "editorSheet"
            }, {
                "tag": "settingsSheet"
            }, {
                "tag": "exportSheet"
            }];
    }

    function test_theWindowClosesWithASheetOpen(data: var): void {
        openSheet(data.tag);
        keyClick("x");
        root.app.close();
        tryCompare(root.app, "visible", false);
        compare(titles(), []);
        compare(root.store.blogTitle, "My Tavlo");
        compare(Probe.stateOf("rss_settings.json"), "absent");
    }

    name: "Window"
}
