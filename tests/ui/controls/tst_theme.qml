import QtQuick
import QtTest
import Tavlo

TestCase {
    id: root

    function test_captionsAreNeverBelowElevenPixels(): void {
        verify(Theme.captionSize >= 11);
    }

    name: "Theme"
}
