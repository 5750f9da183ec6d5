# The packages of Debian 12 and 13 that each kind of work needs. Sourced, never run.
# shellcheck shell=bash

# packages_of PROFILE: prints the names of a profile's packages; fails for an unknown profile.
packages_of() {
    case $1 in
        kit) kit_packages ;;
        build) kit_packages && app_packages ;;
        test) test_packages && desktop_packages ;;
        desktop) desktop_packages ;;
        lint) lint_packages ;;
        bench) echo libbenchmark-dev libatspi2.0-dev && desktop_packages ;;
        package) echo dpkg-dev file ;;
        fresh) echo debootstrap git ;;
        coverage) kit_packages && echo gcovr ;;
        *) return 1 ;;
    esac
}

kit_packages() {
    echo g++ cmake ninja-build \
        libicu-dev nlohmann-json3-dev libgtest-dev libgmock-dev
}

app_packages() {
    echo pkg-config qt6-base-dev qt6-svg-dev qt6-l10n-tools \
        libsystemd-dev libglib2.0-dev libxkbcommon-dev libxkbcommon-x11-dev \
        libxcb1-dev libxcb-xinput-dev libxcb-xkb-dev libxcb-shape0-dev libxcb-res0-dev \
        libxcb-icccm4-dev libxcb-ewmh-dev libxcb-randr0-dev libxcb-xfixes0-dev libxcb-xtest0-dev
}

# clang and its run-time libraries for the fuzzers; the validators of the files in packaging/ and the shells; readers of PDF.
test_packages() {
    echo clang libclang-rt-dev \
        desktop-file-utils appstream man-db groff-base zsh fish \
        poppler-utils qpdf mupdf-tools
}

# The private desktop and the applications that the tests use in it.
desktop_packages() {
    echo xvfb x11-utils libxrandr2 xdotool openbox i3-wm picom dbus at-spi2-core \
        python3 python3-gi imagemagick \
        fonts-dejavu-core "$(svg_plugins)" hicolor-icon-theme adwaita-icon-theme \
        geany mousepad featherpad designer-qt6 libreoffice-writer libreoffice-gtk3
}

# What shows SVG icons: a package of its own since Debian 13.
svg_plugins() {
    if grep --quiet '^VERSION_CODENAME=bookworm$' /etc/os-release; then
        echo libqt6svg6
    else
        echo qt6-svg-plugins
    fi
}

lint_packages() {
    echo clang clang-format clang-tidy shellcheck python3 git
}
