import QtQuick
import QtQuick.Layouts
import Tavlo

// The bar at the top of the window: logo and name, and the four buttons. Where they do not fit
// side by side, the buttons go below the name.
Rectangle {
    id: root

    readonly property bool fits: logo.implicitWidth + Theme.padding + buttons.oneRowWidth <= root.width - 2 * Theme.padding
    // Above the buttons, it is the name's capitals that stand below the padding, not its line.
    readonly property real overhang: root.fits ? 0 : Math.floor(name.baselineOffset + capitals.tightBoundingRect.y)

    signal newPostRequested
    signal exportRequested
    signal importRequested
    signal settingsRequested

    // Where the focus goes when nothing else can have it.
    function focusNewPost(reason: int): void {
        newPost.forceActiveFocus(reason);
    }

    implicitHeight: grid.implicitHeight + 2 * Theme.padding - root.overhang
    color: Theme.header

    GridLayout {
        id: grid

        x: Theme.padding
        y: Theme.padding - root.overhang
        width: root.width - 2 * Theme.padding
        columns: root.fits ? 2 : 1
        columnSpacing: Theme.padding
        rowSpacing: Theme.spacing

        RowLayout {
            id: logo

            spacing: Theme.spacing

            Image {
                source: "rss-logo.svg"
                sourceSize.width: 32
                sourceSize.height: 32
                Accessible.ignored: true
                Layout.preferredWidth: 32
                Layout.preferredHeight: 32
            }

            Text {
                id: name

                text: "Tavlo"
                color: Theme.text
                font.pixelSize: Theme.largeTitleSize
                font.bold: true
                textFormat: Text.PlainText
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
        }

        Flow {
            id: buttons

            readonly property real oneRowWidth: newPost.width + exportFeed.width + importFeed.width + settings.width + 3 * buttons.spacing

            spacing: 8
            Layout.fillWidth: !root.fits
            Layout.preferredWidth: buttons.oneRowWidth
            Layout.alignment: Qt.AlignRight | Qt.AlignVCenter

            ProminentButton {
                id: newPost

                objectName: "newPostButton"
                dimWhenDisabled: false
                symbol: "plus"
                text: qsTr("New Post")
                help: qsTr("Create a new blog post")
                onClicked: root.newPostRequested()
            }

            ProminentButton {
                id: exportFeed

                objectName: "exportButton"
                dimWhenDisabled: false
                symbol: "square.and.arrow.down"
                text: qsTr("Export RSS")
                help: qsTr("Export RSS feed")
                onClicked: root.exportRequested()
            }

            ProminentButton {
                id: importFeed

                objectName: "importButton"
                dimWhenDisabled: false
                text: qsTr("Import RSS")
                help: qsTr("Import existing RSS feeds")
                onClicked: root.importRequested()
            }

            ProminentButton {
                id: settings

                objectName: "settingsButton"
                dimWhenDisabled: false
                symbol: "gearshape"
                text: qsTr("Blog Settings")
                help: qsTr("Edit RSS feed settings")
                onClicked: root.settingsRequested()
            }
        }
    }

    TextMetrics {
        id: capitals

        font: name.font
        text: name.text
    }
}
