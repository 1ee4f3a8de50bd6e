import QtQuick
import Tavlo

// What the window shows below its header: the posts or, when there are none, a word about that.
// The one fades into the other: the cards by themselves, the word as a whole.
FocusScope {
    id: root

    required property BlogViewModel viewModel

    signal focusLeft(int reason)

    EmptyStateView {
        anchors.fill: parent
        shown: list.empty
    }

    PostListView {
        id: list

        objectName: "postList"
        anchors.fill: parent
        focus: true
        // The list stays while its last cards leave.
        visible: !list.empty || list.changing
        viewModel: root.viewModel
        onFocusLeft: reason => root.focusLeft(reason)
    }
}
