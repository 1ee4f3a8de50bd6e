import QtQuick
import Tavlo

// The three sheets over a window's content. What is shown, and of what, is the view's to say.
Item {
    id: root

    required property ContentView view

    Binding {
        target: root.view
        property: "sheetOnScreen"
        value: editorSheet.visible || settingsSheet.visible || exportSheet.visible
    }

    // Each form is built anew for each showing, in the context of this file. (A component that is
    // bound to it cannot be built by the sheet in this version of Qt, hence the unchecked names.)
    // qmllint disable unqualified
    Sheet {
        id: editorSheet

        objectName: "editorSheet"
        width: root.view.editorSize.width
        height: root.view.editorSize.height
        isPresented: root.view.showingEditor
        mayOpen: !settingsSheet.visible && !exportSheet.visible
        form: BlogPostEditorView {
            viewModel: root.view.viewModel
            isPresented: root.view.showingEditor && !editorSheet.leaving
            useDescriptionAsArticle: root.view.viewModel.useDescriptionAsArticle
            editingPost: root.view.editingPost
            onDismissed: root.view.showingEditor = false
        }
    }

    Sheet {
        id: settingsSheet

        objectName: "settingsSheet"
        width: 500
        height: 300
        isPresented: root.view.showingSettings
        mayOpen: !editorSheet.visible && !exportSheet.visible
        form: BlogSettingsView {
            viewModel: root.view.viewModel
            isPresented: root.view.showingSettings && !settingsSheet.leaving
            onDismissed: root.view.showingSettings = false
        }
    }

    Sheet {
        id: exportSheet

        objectName: "exportSheet"
        width: 500
        isPresented: root.view.showingExportPrompt
        mayOpen: !editorSheet.visible && !settingsSheet.visible
        form: ExportPromptView {
            isPresented: root.view.showingExportPrompt && !exportSheet.leaving
            exportPath: root.view.exportPath
            exportError: root.view.exportError
            onExportPathEdited: path => root.view.exportPath = path
            onExportRequested: root.view.exportFeed()
            onDismissed: root.view.showingExportPrompt = false
        }
    }
    // qmllint enable unqualified
}
