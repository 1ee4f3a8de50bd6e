import QtQuick
import Tavlo

Item {
    id: root

    readonly property OwnedStore ownStore: OwnedStore {}
    property BlogViewModel viewModel: root.ownStore.viewModel
    Text {
        text: root.viewModel.blogTitle
        color: Theme.text
    }
}
