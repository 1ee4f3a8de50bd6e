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
    // Names this view's elements for shared transitions. None uses it yet.
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
    readonly property bool sheetOnScreen: editorSheet.visible || settingsSheet.visible || exportSheet.visible
    // The least size that holds the header and the largest sheet below it.
    readonly property int leastWidth: editorSheet.width + 2 * Theme.padding
    readonly property int leastHeight: header.height + editorSheet.height + 2 * Theme.padding

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

    onShowingEditorChanged: {
        if (!root.showingEditor)
            root.editingPost = undefined;
    }
    onSheetOnScreenChanged: {
        if (!root.sheetOnScreen)
            page.forceActiveFocus(Qt.PopupFocusReason);
    }

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
        // A sheet is modal to keys and clicks by itself; this closes the page to assistive tools.
        enabled: !root.sheetOnScreen

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
                onFocusLeft: header.focusNewPost()
                Layout.fillWidth: true
                Layout.fillHeight: true
            }
        }
    }

    // Each form is built anew for each showing, in the context of this view. (A component that is
    // bound to it cannot be built by the sheet in this version of Qt, hence the unchecked names.)
    // qmllint disable unqualified
    Sheet {
        id: editorSheet

        objectName: "editorSheet"
        width: 700
        height: 600
        isPresented: root.showingEditor
        mayOpen: !settingsSheet.visible && !exportSheet.visible
        form: BlogPostEditorView {
            viewModel: root.viewModel
            isPresented: root.showingEditor && !editorSheet.leaving
            useDescriptionAsArticle: root.viewModel.useDescriptionAsArticle
            editingPost: root.editingPost
            onDismissed: root.showingEditor = false
        }
    }

    Sheet {
        id: settingsSheet

        objectName: "settingsSheet"
        width: 500
        height: 300
        isPresented: root.showingSettings
        mayOpen: !editorSheet.visible && !exportSheet.visible
        form: BlogSettingsView {
            viewModel: root.viewModel
            isPresented: root.showingSettings && !settingsSheet.leaving
            onDismissed: root.showingSettings = false
        }
    }

    Sheet {
        id: exportSheet

        objectName: "exportSheet"
        width: 500
        isPresented: root.showingExportPrompt
        mayOpen: !editorSheet.visible && !settingsSheet.visible
        form: ExportPromptView {
            isPresented: root.showingExportPrompt && !exportSheet.leaving
            exportPath: root.exportPath
            exportError: root.exportError
            onExportPathEdited: path => root.exportPath = path
            onExportRequested: root.exportFeed()
            onDismissed: root.showingExportPrompt = false
        }
    }
    // qmllint enable unqualified
}
