import QtQuick
import Tavlo

// What the window shows below its header: the posts or, when there are none, a word about that.
// The one fades into the other: the cards by themselves, the word as a whole.
FocusScope {
    id: root

    required property BlogViewModel viewModel

    signal focusLeft

    EmptyStateView {
        anchors.fill: parent
        shown: list.empty
    }

    PostListView {
        id: list

        anchors.fill: parent
        focus: true
        visible: !list.empty || lastCards.running
        viewModel: root.viewModel
        onEmptyChanged: lastCards.restart()
        onFocusLeft: root.focusLeft()
    }

    // The list stays while its last cards leave.
    Timer {
        id: lastCards

        interval: Theme.duration
    }
}
