import QtQuick
import QtTest
import Tavlo
import TavloTest

// The contrasts are those of WCAG 2.2, level AA.
TestCase {
    id: root

    // Each ink, and the grounds that it appears on.
    function texts(): var {
        return {
            "text": ["window", "header", "surface", "field", "menu", "button", "buttonHovered", "buttonPressed"],
            "secondaryText": ["window", "header", "surface", "field", "menu"],
            "placeholderText": ["field"],
            "link": ["surface", "window"],
            "error": ["surface", "window"],
            "accentText": ["accent", "accentHovered", "accentPressed"],
            "selectedText": ["selection"]
        };
    }

    function controls(): var {
        return {
            "accent": ["window", "header", "surface", "menu"],
            "accentHovered": ["window", "header", "surface", "menu"],
            "accentPressed": ["window", "header", "surface", "menu"],
            "selection": ["field"],
            "border": ["window", "surface", "field", "button", "buttonHovered", "buttonPressed"],
            "focusRing": ["window", "header", "surface", "field"],
            "scrollBar": ["window", "surface", "field"],
            "scrollBarHovered": ["window", "surface", "field"]
        };
    }

    function linear(part: double): double {
        return part <= 0.04045 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4);
    }

    function luminance(shade: color): double {
        return 0.2126 * root.linear(shade.r) + 0.7152 * root.linear(shade.g) + 0.0722 * root.linear(shade.b);
    }

    function contrast(one: color, other: color): double {
        const lights = [root.luminance(one), root.luminance(other)];
        return (Math.max(...lights) + 0.05) / (Math.min(...lights) + 0.05);
    }

    function verifyPairs(pairs: var, least: double): void {
        for (const ink in pairs) {
            for (const ground of pairs[ink]) {
                const found = root.contrast(Theme[ink], Theme[ground]);
                verify(found >= least, `${ink} on ${ground}: ${found.toFixed(2)}`);
            }
        }
    }

    function test_contrast_ofBlackAndWhite(): void {
        fuzzyCompare(root.contrast(Qt.color("#000000"), Qt.color("#ffffff")), 21, 0.001);
        fuzzyCompare(root.contrast(Qt.color("#777777"), Qt.color("#ffffff")), 4.48, 0.005);
    }

    function test_texts_areReadable_data(): var {
        return [{
                "tag": "light",
                "dark": false
            }, {
                "tag": "dark",
                "dark": true
            }];
    }

    function test_texts_areReadable(data: var): void {
        Theme.dark = data.dark;
        root.verifyPairs(root.texts(), 4.5);
    }

    function test_controls_standOut_data(): var {
        return root.test_texts_areReadable_data();
    }

    function test_controls_standOut(data: var): void {
        Theme.dark = data.dark;
        root.verifyPairs(root.controls(), 3);
    }

    function test_grounds_lightAndDark(): void {
        Theme.dark = false;
        verify(root.luminance(Theme.window) > root.luminance(Theme.text));
        Theme.dark = true;
        verify(root.luminance(Theme.window) < root.luminance(Theme.text));
    }

    function test_type_followsTheApplicationFont_data(): var {
        return [{
                "tag": "usual",
                "font": 13,
                "sizes": [26, 17, 15, 13, 11]
            }, {
                "tag": "double",
                "font": 26,
                "sizes": [52, 34, 30, 26, 20]
            }, {
                "tag": "tiny",
                "font": 6,
                "sizes": [26, 17, 15, 13, 11]
            }];
    }

    function test_type_followsTheApplicationFont(data: var): void {
        Assistive.setFontSize(data.font);
        tryCompare(Theme, "bodySize", data.sizes[3]);
        compare([Theme.largeTitleSize, Theme.title2Size, Theme.title3Size, Theme.bodySize, Theme.captionSize], data.sizes);
        compare(Theme.symbolSize % 2, 1);
        Assistive.setFontSize(13);
    }

    function cleanup(): void {
        Theme.dark = false;
    }

    name: "Theme"
}
