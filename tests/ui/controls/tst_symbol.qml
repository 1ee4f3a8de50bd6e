import QtQuick
import QtTest
import Tavlo

Item {
    id: root

    readonly property var names: ["calendar", "chevron.down", "chevron.left", "chevron.right", "chevron.up", "doc.plaintext", "gearshape", "plus", "square.and.arrow.down"]

    width: 200
    height: 200

    Rectangle {
        id: ground

        width: 100
        height: 100
        color: "white"
    }

    Component {
        id: symbolComponent

        Symbol {
        }
    }

    Image {
        id: logo

        x: 150
        source: "qrc:/qt-project.org/imports/Tavlo/rss-logo.svg"
        sourceSize: Qt.size(32, 32)
    }

    TestCase {
        id: test

        // The darkest value that a colour part has anywhere in the symbol.
        function strongest(part: string): int {
            const picture = grabImage(ground);
            let found = 255;
            for (let x = 0; x < picture.width; ++x) {
                for (let y = 0; y < picture.height; ++y)
                    found = Math.min(found, picture[part](x, y));
            }
            return found;
        }

        function test_eachSymbol_isDrawnInItsColour_data(): var {
            return root.names.map(name => ({
                            "tag": name
                        }));
        }

        function test_eachSymbol_isDrawnInItsColour(data: var): void {
            const symbol = createTemporaryObject(symbolComponent, ground, {
                    "name": data.tag,
                    "size": 48,
                    "color": "#ff0000"
                });
            compare(symbol.width, 48);
            compare(symbol.height, 48);
            waitForRendering(symbol);
            verify(test.strongest("green") < 8);
            verify(test.strongest("blue") < 8);
            verify(test.strongest("red") > 247);
            symbol.color = "#0000ff";
            waitForRendering(symbol);
            verify(test.strongest("red") < 8);
            verify(test.strongest("blue") > 247);
        }

        // Three to one on white, the least that a control's mark is to have.
        function test_smallChevrons_areStrong_data(): var {
            return root.names.filter(name => name.startsWith("chevron")).map(name => ({
                            "tag": name
                        }));
        }

        function test_smallChevrons_areStrong(data: var): void {
            const symbol = createTemporaryObject(symbolComponent, ground, {
                    "name": data.tag,
                    "size": 12,
                    "color": "#1c1c1f"
                });
            waitForRendering(symbol);
            verify(test.strongest("green") < 0x94);
        }

        function test_theLogo_isThere(): void {
            compare(logo.status, Image.Ready);
            compare(logo.paintedWidth, logo.paintedHeight);
        }

        name: "Symbol"
        when: windowShown
    }
}
