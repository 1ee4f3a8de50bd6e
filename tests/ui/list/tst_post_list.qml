import QtQuick
import QtTest
import Tavlo
import Tavlo.ListTest

Item {
    id: root

    width: 700
    height: 600

    Component {
        id: areas

        PostsArea {
            anchors.fill: parent
        }
    }

    TestCase {
        name: "PostList"
        when: windowShown

        function test_rows_are_in_the_order_of_the_store(): void {
            const store = StoreHand.store(["A", "B", "C"]);
            const area = createTemporaryObject(areas, root, {
                "viewModel": store
            });
            wait(50);
        }
    }
}
