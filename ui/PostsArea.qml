import QtQuick
import Tavlo

// What the window shows below its header: the posts, or that there are none yet.
FocusScope {
    id: root

    required property BlogViewModel viewModel

    signal focusLeft

    EmptyStateView {
        anchors.fill: parent
        shown: list.count === 0
    }

    PostListView {
        id: list

        anchors.fill: parent
        focus: true
        viewModel: root.viewModel
        onFocusLeft: root.focusLeft()
    }
}
