import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Tavlo
import TavloTest

// A menu gives the focus back to the content of an ApplicationWindow, which the test's own window
// is not.
Item {
    id: stage

    ApplicationWindow {
        id: window

        width: 500
        height: 400
        visible: true

        FocusScope {
            id: root

            property int escapes: 0
            property int altKeys: 0

            anchors.fill: parent
            focus: true
            Keys.onEscapePressed: ++root.escapes

            Item {
                id: place

                width: 300
                height: 300
                activeFocusOnTab: true
            }

            PushButton {
                id: below

                x: 400
                y: 350
                text: "Below"
            }

            AppMenu {
                id: menu

                AppMenuItem {
                    id: disabledItem

                    text: "Never"
                    enabled: false
                }

                AppMenuItem {
                    id: firstItem

                    text: "Edit & change"
                }

                AppMenuSeparator {
                }

                AppMenuItem {
                    id: secondItem

                    text: "Delete " + "a long way ".repeat(2)
                }
            }

            SignalSpy {
                id: first

                target: firstItem
                signalName: "triggered"
            }

            SignalSpy {
                id: second

                target: secondItem
                signalName: "triggered"
            }

            SignalSpy {
                id: never

                target: disabledItem
                signalName: "triggered"
            }

            SignalSpy {
                id: clicks

                target: below
                signalName: "clicked"
            }
        }
    }

    TestCase {
        id: test

        function init(): void {
            root.escapes = 0;
            for (const spy of [first, second, never, clicks])
                spy.clear();
            place.forceActiveFocus();
        }

        function cleanup(): void {
            menu.close();
            tryCompare(menu, "visible", false);
            root.LayoutMirroring.enabled = false;
        }

        function open(byKey: bool): void {
            menu.openAt(place, 100, 50, byKey);
            tryCompare(menu, "opened", true);
        }

        function test_openedByAKey_startsWithItsFirstCommand(): void {
            open(true);
            verify(firstItem.highlighted);
            verify(firstItem.activeFocus);
        }

        function test_openedByThePointer_startsWithNone(): void {
            open(false);
            verify(!firstItem.highlighted);
            keyClick(Qt.Key_Down);
            verify(firstItem.highlighted);
        }

        function test_keys_moveAndTrigger_data(): var {
            return [{
                    "tag": "Return",
                    "key": Qt.Key_Return
                }, {
                    "tag": "Enter",
                    "key": Qt.Key_Enter
                }, {
                    "tag": "Space",
                    "key": Qt.Key_Space
                }];
        }

        function test_keys_moveAndTrigger(data: var): void {
            open(true);
            keyClick(Qt.Key_Down);
            verify(secondItem.highlighted);
            keyClick(Qt.Key_Up);
            verify(firstItem.highlighted);
            keyClick(data.key);
            compare(first.count, 1);
            compare(second.count, 0);
            tryCompare(menu, "visible", false);
            verify(place.activeFocus);
        }

        function test_escape_closesTheMenuOnly(): void {
            open(true);
            keyClick(Qt.Key_Escape);
            tryCompare(menu, "visible", false);
            compare(root.escapes, 0);
            verify(place.activeFocus);
            keyClick(Qt.Key_Escape);
            compare(root.escapes, 1);
        }

        function test_click_triggers(): void {
            open(false);
            mouseClick(secondItem);
            compare(second.count, 1);
            tryCompare(menu, "visible", false);
        }

        function test_aDisabledCommand_doesNothing(): void {
            open(false);
            mouseClick(disabledItem);
            compare(never.count, 0);
            Assistive.press(disabledItem);
            compare(never.count, 0);
            verify(Assistive.states(disabledItem).includes("disabled"));
        }

        function test_clickOutside_closesOnly(): void {
            open(false);
            mouseClick(below);
            tryCompare(menu, "visible", false);
            compare(clicks.count, 0);
        }

        function test_ampersand_isShown_andIsNoAltKey(): void {
            open(true);
            compare(firstItem.contentItem.text, "Edit & change");
            compare(firstItem.contentItem.textFormat, Text.PlainText);
            keyClick(Qt.Key_Space, Qt.AltModifier);
            compare(Assistive.name(firstItem), "Edit & change");
            compare(Assistive.role(firstItem), Accessible.MenuItem);
        }

        function test_assistiveTools_press(): void {
            open(false);
            Assistive.press(secondItem);
            compare(second.count, 1);
            tryCompare(menu, "visible", false);
        }

        function test_place_isBesideThePointer(): void {
            open(false);
            compare(menu.x, 100);
            compare(menu.y, 50);
        }

        function test_place_isMirrored(): void {
            root.LayoutMirroring.enabled = true;
            root.LayoutMirroring.childrenInherit = true;
            menu.openAt(place, 250, 50, false);
            tryCompare(menu, "opened", true);
            fuzzyCompare(menu.x + menu.width, 250, 1);
        }

        function test_width_fitsTheLongestCommand(): void {
            open(false);
            verify(secondItem.width >= secondItem.implicitWidth);
            verify(!secondItem.contentItem.truncated);
            compare(firstItem.width, secondItem.width);
        }

        name: "AppMenu"
        when: window.active
    }
}
