import QtQuick
import QtQuick.Layouts
import Tavlo

// The whole of a window: header, posts, and the three sheets. It owns the store, and holds what is
// on screen in plain properties; the views below it ask for changes by signals.
Item {
    id: root

    property BlogViewModel viewModel: root.ownStore.viewModel
    property bool showingEditor: false
    property bool showingSettings: false
    // Names this view's elements for shared transitions. None uses it.
    property QtObject animation: QtObject {
    }
    property bool showingExportPrompt: false
    property string exportPath: ""
    // An error line for the export prompt; undefined for none.
    property var exportError: undefined
    // The post that the editor is to edit; undefined to write a new one.
    property var editingPost: undefined

    // The store of a view that was given none. It is made when the view first asks for it.
    readonly property OwnedStore ownStore: OwnedStore {
    }
    // Whether there is a sheet to be seen; the sheets tell.
    property bool sheetOnScreen: false
    // Whether the focus was to be seen on the page when the sheet came over it.
    property bool ringWasShown: false
    // The size of the largest sheet, and the least size that holds it with the padding around it.
    readonly property size editorSize: Qt.size(700, 600)
    readonly property int leastWidth: root.editorSize.width + 2 * Theme.padding
    readonly property int leastHeight: root.editorSize.height + 2 * Theme.padding

    function writeNewPost(): void {
        root.editingPost = undefined;
        root.showingEditor = true;
    }

    function promptForExport(): void {
        root.exportPath = FileLocations.onDesktop("feed.xml");
        root.showingExportPrompt = true;
    }

    function exportFeed(): void {
        root.viewModel.exportRSS(root.exportPath);
        root.showingExportPrompt = false;
        root.exportError = undefined;
    }

    // A sheet is modal to keys and clicks by itself; this closes the page to assistive tools.
    function leavePage(): void {
        root.ringWasShown = root.Window.activeFocusItem?.visualFocus ?? false;
        page.enabled = false;
        // It would take the focus when it is enabled again, for a reason of its own.
        page.focus = false;
    }

    function returnToPage(): void {
        page.enabled = true;
        page.forceActiveFocus(root.ringWasShown ? Qt.ShortcutFocusReason : Qt.PopupFocusReason);
    }

    onShowingEditorChanged: {
        if (!root.showingEditor)
            root.editingPost = undefined;
    }
    onSheetOnScreenChanged: root.sheetOnScreen ? root.leavePage() : root.returnToPage()

    EditRequests {
        onReceived: post => {
            root.editingPost = post;
            root.showingEditor = true;
        }
    }

    Shortcut {
        sequence: "Ctrl+N"
        enabled: page.enabled
        onActivated: root.writeNewPost()
    }

    Shortcut {
        sequence: "Ctrl+E"
        enabled: page.enabled
        onActivated: root.promptForExport()
    }

    FocusScope {
        id: page

        anchors.fill: parent
        focus: true

        ColumnLayout {
            anchors.fill: parent
            spacing: 0

            HeaderView {
                id: header

                onNewPostRequested: root.writeNewPost()
                onExportRequested: root.promptForExport()
                onImportRequested: OpenPanel.importInto(root.viewModel)
                onSettingsRequested: root.showingSettings = true
                Layout.fillWidth: true
            }

            Rectangle {
                implicitHeight: 1
                color: Theme.separator
                Layout.fillWidth: true
            }

            PostsArea {
                viewModel: root.viewModel
                onFocusLeft: reason => header.focusNewPost(reason)
                Layout.fillWidth: true
                Layout.fillHeight: true
            }
        }
    }

    // The sheets and their forms are loaded beside the window once it shows its first frame, which
    // need not wait for what it does not show.
    Loader {
        id: sheets

        objectName: "sheets"
        asynchronous: true
    }

    Connections {
        target: root.Window.window
        enabled: sheets.status === Loader.Null

        function onFrameSwapped(): void {
            sheets.setSource("ContentSheets.qml", {
                    "view": root
                });
        }
    }
}
