import QtQuick
import QtTest
import Tavlo
import TavloTest

WindowCase {
    id: root

    function init(): void {
        Probe.setRightToLeft(true);
        openWindow([{
                    "title": "כותרת",
                    "permalink": "https://example.com/"
                }]);
    }

    function cleanup(): void {
        Probe.setRightToLeft(false);
    }

    function test_theHeaderRunsFromTheRight(): void {
        const items = shownItems(root.view);
        const logo = items.find(item => item.source !== undefined && String(item.source).includes("rss-logo"));
        const name = items.find(item => item.text === "Tavlo");
        const row = [logo, name].concat(["newPostButton", "exportButton", "importButton", "settingsButton"].map(tag => part(tag))).map(item => place(item));
        fuzzyCompare(row[0].right, root.view.width - Theme.padding, 1);
        for (let i = 1; i < row.length; ++i)
            verify(row[i].right < row[i - 1].left, "element " + i);
        fuzzyCompare(row[5].left, Theme.padding, 1);
    }

    function test_labelsStandAtTheRightOfTheirFields(): void {
        openSheet("settingsSheet");
        const label = shownItems(form("settingsSheet")).find(item => item as FormLabel);
        verify(place(label).left > place(control("settingsSheet", "titleField")).right);
    }

    function test_cancelIsAtTheRightAndSaveAtTheLeft_data(): var {
        return [{
                "tag": "editorSheet"
            }, {
                "tag": "settingsSheet"
            }];
    }

    function test_cancelIsAtTheRightAndSaveAtTheLeft(data: var): void {
        openSheet(data.tag);
        verify(place(control(data.tag, "saveButton")).right < place(control(data.tag, "cancelButton")).left);
    }

    function test_theExportPromptsButtonsAreMirrored(): void {
        openSheet("exportSheet");
        verify(place(control("exportSheet", "exportButton")).right < place(control("exportSheet", "cancelButton")).left);
    }

    function test_aCardIsMirrored(): void {
        const card = cards()[0];
        const date = findChild(card, "date");
        const permalink = findChild(card, "permalink");
        verify(place(date).left > place(permalink).right);
    }

    function test_textsBeginAtOneDistanceFromTheirFieldsEdges(): void {
        openSheet("editorSheet");
        const title = control("editorSheet", "titleField");
        const area = control("editorSheet", "textArea");
        const distance = title.rightPadding;
        fuzzyCompare(place(control("editorSheet", "descriptionField")).right - place(area).right + area.rightPadding, distance, 0.5);
        // The other side is the scroll bar's.
        verify(area.leftPadding > area.rightPadding);
    }

    name: "RightToLeft"
}
