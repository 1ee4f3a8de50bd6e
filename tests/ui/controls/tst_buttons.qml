import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Tavlo
import TavloTest

FocusScope {
    id: root

    property int returns: 0
    property int enters: 0

    width: 600
    height: 400
    focus: true
    Keys.onReturnPressed: ++root.returns
    Keys.onEnterPressed: ++root.enters

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 20

        PushButton {
            id: push

            text: "Save & close"
        }

        ProminentButton {
            id: prominent

            symbol: "plus"
            text: "R&D"
            help: "Helps & explains"
        }

        PushButton {
            id: last

            text: "Last"
        }
    }

    // Where the pointer rests while it is on nothing.
    Item {
        id: nowhere

        width: 10
        height: 10
    }

    SignalSpy {
        id: clicks

        signalName: "clicked"
    }

    TestCase {
        id: test

        function both(): var {
            return [{
                    "tag": "push",
                    "button": push
                }, {
                    "tag": "prominent",
                    "button": prominent
                }];
        }

        function init(): void {
            for (const button of [push, prominent, last]) {
                button.enabled = true;
                button.visible = true;
            }
            // A button that moves between press and release is not clicked.
            tryVerify(() => !isPolishScheduled(row));
            root.returns = 0;
            root.enters = 0;
            mouseMove(nowhere);
            nowhere.forceActiveFocus();
        }

        function watch(button: Item): void {
            clicks.target = button;
            clicks.clear();
        }

        function test_click_data(): var {
            return both();
        }

        function test_click(data: var): void {
            watch(data.button);
            mouseClick(data.button);
            compare(clicks.count, 1);
            data.button.enabled = false;
            mouseClick(data.button);
            compare(clicks.count, 1);
        }

        function test_space_pressesTheFocusedButton_data(): var {
            return both();
        }

        function test_space_pressesTheFocusedButton(data: var): void {
            watch(data.button);
            data.button.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            compare(clicks.count, 1);
        }

        function test_returnAndEnter_areLeftToWhatIsAroundAPushButton(): void {
            watch(push);
            push.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Enter);
            compare(root.returns, 1);
            compare(root.enters, 1);
            compare(clicks.count, 0);
        }

        function test_ampersand_isShown_andIsNoAltKey_data(): var {
            return [{
                    "tag": "push",
                    "button": push,
                    "key": Qt.Key_Space
                }, {
                    "tag": "prominent",
                    "button": prominent,
                    "key": Qt.Key_D
                }];
        }

        function test_ampersand_isShown_andIsNoAltKey(data: var): void {
            watch(data.button);
            keyClick(data.key, Qt.AltModifier);
            compare(clicks.count, 0);
            compare(Assistive.name(data.button), data.button.text);
            const title = findChild(data.button, "title");
            compare(title.text, data.button.text);
            compare(title.textFormat, Text.PlainText);
        }

        function test_focusRing_isForKeysOnly(): void {
            mouseClick(push);
            verify(push.activeFocus);
            verify(!findChild(push, "focusRing").visible);
            nowhere.forceActiveFocus();
            push.forceActiveFocus(Qt.TabFocusReason);
            verify(findChild(push, "focusRing").visible);
            keyClick(Qt.Key_Tab);
            verify(prominent.activeFocus);
            verify(findChild(prominent, "focusRing").visible);
            verify(!findChild(push, "focusRing").visible);
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
            verify(push.activeFocus);
            verify(findChild(push, "focusRing").visible);
        }

        function test_assistiveTools_seeAndPressThem_data(): var {
            return both();
        }

        function test_assistiveTools_seeAndPressThem(data: var): void {
            watch(data.button);
            compare(Assistive.role(data.button), Accessible.Button);
            compare(Assistive.description(data.button), data.button.help || "");
            verify(Assistive.states(data.button).includes("focusable"));
            Assistive.press(data.button);
            compare(clicks.count, 1);
            data.button.enabled = false;
            verify(Assistive.states(data.button).includes("disabled"));
            Assistive.press(data.button);
            compare(clicks.count, 1);
            data.button.enabled = true;
            data.button.visible = false;
            Assistive.press(data.button);
            compare(clicks.count, 1);
        }

        function test_help_comesToTheRestingPointer_andGoesWithAPress(): void {
            const help = findChild(prominent, "help");
            compare(help.text, "Helps & explains");
            verify(!help.visible);
            mouseMove(prominent);
            verify(!help.visible);
            tryVerify(() => help.opened, 2 * Theme.helpDelay + 1000);
            mouseClick(prominent);
            tryVerify(() => !help.visible);
            wait(Theme.helpDelay + 200);
            verify(!help.visible);
            mouseMove(nowhere);
            verify(!help.visible);
        }

        function test_help_comesWithTheKeyboardFocus(): void {
            const help = findChild(prominent, "help");
            prominent.forceActiveFocus(Qt.MouseFocusReason);
            wait(Theme.helpDelay + 200);
            verify(!help.visible);
            nowhere.forceActiveFocus();
            prominent.forceActiveFocus(Qt.TabFocusReason);
            tryVerify(() => help.opened, 2 * Theme.helpDelay + 1000);
            last.forceActiveFocus(Qt.TabFocusReason);
            tryVerify(() => !help.visible);
        }

        function test_help_leavesADisabledButton(): void {
            const help = findChild(prominent, "help");
            mouseMove(prominent);
            tryVerify(() => help.opened, 2 * Theme.helpDelay + 1000);
            prominent.enabled = false;
            tryVerify(() => !help.visible);
        }

        function test_noHelp_isNoTip(): void {
            const text = prominent.help;
            prominent.help = "";
            prominent.forceActiveFocus(Qt.TabFocusReason);
            wait(Theme.helpDelay + 200);
            verify(!findChild(prominent, "help").visible);
            prominent.help = text;
        }

        function test_looks_ofStates(): void {
            compare(prominent.fill, Theme.accent);
            compare(prominent.ink, Theme.accentText);
            compare(push.fill, Theme.button);
            mouseMove(push);
            tryCompare(push, "fill", Theme.buttonHovered);
            mousePress(push);
            tryCompare(push, "fill", Theme.buttonPressed);
            mouseRelease(push);
            mouseMove(nowhere);
            push.prominent = true;
            compare(push.fill, Theme.accent);
            push.prominent = false;
            prominent.enabled = false;
            compare(prominent.fill, Theme.buttonDisabled);
            compare(prominent.ink, Theme.disabledText);
            prominent.dimWhenDisabled = false;
            compare(prominent.fill, Theme.accent);
            compare(prominent.ink, Theme.accentText);
            prominent.dimWhenDisabled = true;
        }

        function test_size_growsWithTheText(): void {
            const height = prominent.implicitHeight;
            const width = prominent.implicitWidth;
            verify(height > push.implicitHeight);
            Assistive.setFontSize(26);
            tryVerify(() => prominent.implicitHeight > 1.4 * height);
            verify(prominent.implicitWidth > 1.4 * width);
            Assistive.setFontSize(13);
            tryCompare(prominent, "implicitHeight", height);
        }

        name: "Buttons"
        when: windowShown
    }
}
