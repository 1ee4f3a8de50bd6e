import QtQuick
import QtQuick.Templates as T
import Tavlo

// A month of days over the form, to pick one from. Return, Space or a click takes a day; Escape
// leaves the date as it is, and is this popup's alone. Other shortcuts of the form go on working.
// It goes at once: keys that are pressed right after are the form's.
T.Popup {
    id: root

    required property PostDate postDate
    required property bool rightToLeft

    // The user has taken a day, or wants none; the keyboard is to go back where it was.
    signal done

    function takeDay(): void {
        if (!root.opened)
            return;
        root.postDate.takeDay();
        root.finish();
    }

    function finish(): void {
        root.close();
        root.done();
    }

    // Beneath the button, or above it where there is room only there.
    function place(): void {
        const gap = Theme.spacing / 2;
        const needed = root.implicitHeight + gap + Theme.spacing;
        const above = root.parent.mapToItem(T.Overlay.overlay, 0, 0).y;
        const below = T.Overlay.overlay.height - above - root.parent.height;
        const isAbove = below < needed && above >= needed;
        root.y = isAbove ? -root.implicitHeight - gap : root.parent.height + gap;
    }

    x: root.rightToLeft ? root.parent.width - root.implicitWidth : 0
    margins: Theme.spacing
    padding: Theme.spacing
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    focus: true
    closePolicy: T.Popup.CloseOnPressOutsideParent

    // To assistive tools, a popup is the item around its content.
    Component.onCompleted: root.contentItem.parent.Accessible.name = qsTr("Choose Day")
    onAboutToShow: root.place()
    onOpened: (root.contentItem as MonthView).focusCurrentDay()

    contentItem: MonthView {
        days: root.postDate.month
        mirrored: root.rightToLeft
        onTaken: root.takeDay()
        onDismissed: root.finish()
    }

    background: FloatingGround {
    }

    enter: FadeIn {
        duration: Theme.shortDuration
    }
}
