# shellcheck shell=bash disable=SC2034
# Debian's packages that Tavlo is made with, by what they are for. Every list of packages in the
# project is one of these.

# To compile it. The QML modules of `run_packages` are needed too: the QML compiler reads them.
build_packages=(
    ccache
    cmake
    g++
    libegl-dev
    libgl-dev
    libicu-dev
    libsimdjson-dev
    ninja-build
    pkg-config
    qt6-base-dev
    qt6-declarative-dev
    qt6-declarative-dev-tools
    qt6-l10n-tools
    qt6-svg-dev
    qt6-tools-dev
    qt6-tools-dev-tools
)

# To start it.
run_packages=(
    fonts-noto-core
    libgl1-mesa-dri
    libqt6svg6
    libxkbcommon-x11-0
    qml6-module-qtqml
    qml6-module-qtqml-models
    qml6-module-qtqml-workerscript
    qml6-module-qtquick
    qml6-module-qtquick-controls
    qml6-module-qtquick-layouts
    qml6-module-qtquick-templates
    qt6-translations-l10n
    qt6-wayland
    tzdata
)

# To give it a display, a window manager and a session bus where there are none.
display_packages=(
    dbus-daemon
    imagemagick
    openbox
    x11-utils
    xauth
    xdotool
    xvfb
)

# To test it.
test_packages=(
    appstream
    at-spi2-core
    dbus-x11
    desktop-file-utils
    fonts-noto-cjk
    fonts-noto-color-emoji
    libgmock-dev
    libgtest-dev
    librapidcheck-dev
    libxml2-utils
    python3
    python3-feedparser
    python3-gi
    python3-pyatspi
    qml6-module-qtquick-window
    qml6-module-qttest
    rapidjson-dev
    strace
    valgrind
    weston
    xclip
)

# To see what the tests reach, and what they would miss.
test_quality_packages=(
    bubblewrap
    gcovr
)

# To measure it.
bench_packages=(
    libbenchmark-dev
)

# To pack it, and to try the package.
packing_packages=(
    debootstrap
    dpkg-dev
    lintian
)

# To check its source.
check_packages=(
    clang-14
    clang-format-14
    clang-tidy-14
    git
    libclang-rt-14-dev
    llvm-14
    shellcheck
)
