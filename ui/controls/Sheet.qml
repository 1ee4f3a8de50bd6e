import QtQuick
import QtQuick.Templates as T
import Tavlo

// A form that lies over the window and is modal to it. Its owner says by isPresented whether it is
// shown; each showing builds the form anew. Nothing outside the form closes it. Assistive tools know
// it by the form's title.
T.Popup {
    id: root

    // Whether the owner wants the sheet to be shown.
    property bool isPresented: false
    // Whether it may be shown now: of two sheets, the later waits until the earlier has gone.
    property bool mayOpen: true
    // The form, a SheetForm. It keeps what it was opened with; its owner may change its mind while
    // it leaves.
    required property Component form

    readonly property string title: ((root.contentItem as Loader)?.item as SheetForm)?.title ?? ""

    // From the moment the sheet starts to leave until it has gone. It takes no further input then.
    property bool leaving: false

    function follow(): void {
        if (root.isPresented && root.mayOpen && !root.visible)
            root.open();
        else if (!root.isPresented && root.visible)
            root.close();
    }

    parent: T.Overlay.overlay
    anchors.centerIn: T.Overlay.overlay
    implicitHeight: implicitContentHeight
    modal: true
    focus: true
    closePolicy: T.Popup.NoAutoClose

    // To assistive tools, a popup is the item around its content.
    onTitleChanged: root.contentItem.parent.Accessible.name = root.title
    onIsPresentedChanged: root.follow()
    onMayOpenChanged: root.follow()
    Component.onCompleted: root.follow()
    onAboutToShow: root.leaving = false
    onAboutToHide: root.leaving = true
    onClosed: root.follow()

    contentItem: Loader {
        focus: true
        active: root.visible
        enabled: !root.leaving
        sourceComponent: root.form
    }

    background: Rectangle {
        color: Theme.surface
        radius: Theme.sheetRadius
        border.color: Theme.separator
    }

    T.Overlay.modal: Rectangle {
        color: Theme.scrim

        Behavior on opacity  {
            NumberAnimation {
                duration: Theme.shortDuration
            }
        }
    }

    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.shortDuration
        }
        NumberAnimation {
            property: "scale"
            from: 0.97
            to: 1
            duration: Theme.shortDuration
            easing.type: Easing.OutCubic
        }
    }

    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.shortDuration
        }
        NumberAnimation {
            property: "scale"
            to: 0.97
            duration: Theme.shortDuration
            easing.type: Easing.InCubic
        }
    }
}
