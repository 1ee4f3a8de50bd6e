import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    function init(): void {
        openWindow([]);
    }

    function test_theLeastWindowHoldsTheLargestSheetAndThePaddingAroundIt(): void {
        root.app.width = root.app.minimumWidth;
        root.app.height = root.app.minimumHeight;
        openSheet("editorSheet");
        const frame = place(form("editorSheet"));
        compare(frame.left, Theme.padding);
        compare(frame.top, Theme.padding);
        compare(root.app.width - frame.right, Theme.padding);
        compare(root.app.height - frame.bottom, Theme.padding);
    }

    function test_theWindowBeginsNoLargerThanTheScreenHolds(): void {
        const room = Qt.size(root.app.Screen.desktopAvailableWidth, root.app.Screen.desktopAvailableHeight);
        compare(root.app.width, Math.max(root.app.minimumWidth, Math.min(960, room.width - root.app.frame)));
        compare(root.app.height, Math.max(root.app.minimumHeight, Math.min(760, room.height - root.app.frame)));
    }

    function test_theSizeIsTheUsersOnceTheWindowIsThere(): void {
        root.app.width = 1100;
        root.app.height = 900;
        Probe.setTextSize(26);
        waitForLayout();
        compare(root.app.width, 1100);
        compare(root.app.height, 900);
        Probe.setTextSize(0);
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
