# What the other scripts share; they read it in with `.`, which takes `--qt 5` or `--qt 6` out of their arguments.

caller=$PWD # where the script was called
cd "$(dirname "${BASH_SOURCE[0]}")/.."

qt=5
arguments=()
while [ $# -gt 0 ]; do
    case $1 in
        --qt) qt=${2:-}; shift ;;
        --qt=*) qt=${1#--qt=} ;;
        *) arguments+=("$1") ;;
    esac
    [ $# -eq 0 ] || shift
done
set -- "${arguments[@]}"

build_packages=(g++ cmake ninja-build)
font_packages=(fonts-inter fonts-jetbrains-mono)
case $qt in
    5)
        build_packages+=(qtbase5-dev libqt5svg5)
        linguist_packages=(qttools5-dev)
        wayland_packages=(qtwayland5)
        ;;
    6)
        build_packages+=(qt6-base-dev libqt6svg6)
        linguist_packages=(qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools)
        wayland_packages=(qt6-wayland)
        ;;
    *)
        echo "--qt is 5 or 6, not \"$qt\"" >&2
        exit 2
        ;;
esac

# is_there PACKAGE: on Debian, whether it is installed; elsewhere, whether what we use of it is found.
is_there() {
    if command -v dpkg-query > /dev/null; then
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2> /dev/null)" = installed ]
        return
    fi
    case $1 in
        ninja-build) command -v ninja ;;
        xvfb) command -v Xvfb ;;
        qtbase5-dev) pkg-config --exists 'Qt5Widgets >= 5.15' ;;
        libqt5svg5) [ -e "$(qmake -query QT_INSTALL_PLUGINS)/imageformats/libqsvg.so" ] ;;
        qt6-base-dev) pkg-config --exists 'Qt6Widgets >= 6.4' ;;
        libqt6svg6) [ -e "$(qmake6 -query QT_INSTALL_PLUGINS)/imageformats/libqsvg.so" ] ;;
        libbenchmark-dev) pkg-config --exists benchmark ;;
        doxygen-awesome-css) [ -d /usr/share/doxygen-awesome-css ] ;;
        qttools5-dev) [ -d "$(qmake -query QT_INSTALL_LIBS)/cmake/Qt5LinguistTools" ] ;;
        qt6-tools-dev | qt6-tools-dev-tools | qt6-l10n-tools)
            [ -d "$(qmake6 -query QT_INSTALL_LIBS)/cmake/Qt6LinguistTools" ]
            ;;
        fonts-inter) fc-list | grep -q Inter ;;
        fonts-jetbrains-mono) fc-list | grep -q JetBrains ;;
        *) command -v "$1" ;;
    esac > /dev/null 2>&1
}

# need PACKAGE...: installs the Debian packages that are missing, or names them and stops.
need() {
    local package missing=() root=()
    for package in "$@"; do
        is_there "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    [ "$(id -u)" = 0 ] || root=(sudo)
    if ! command -v apt-get > /dev/null || ! command -v "${root[0]:-true}" > /dev/null; then
        echo "Please install what Debian calls: ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" > /dev/null
}

# folder_of PRESET: where it is built, which for Qt 6 is a folder of its own.
folder_of() {
    local suffix=
    [ "$qt" = 5 ] || suffix=-qt$qt
    echo "build/$1$suffix"
}

# build PRESET TARGET [CMAKE OPTION]...: configures and builds, quietly unless something fails.
build() {
    local preset=$1 target=$2 folder log
    folder=$(folder_of "$1")
    log=$folder.log
    shift 2
    echo "Building $target ($preset, Qt $qt)"
    mkdir -p build
    cmake --preset "$preset" -B "$folder" -DTAVIK_QT="$qt" "$@" > "$log" 2>&1 \
        && cmake --build "$folder" --target "$target" > "$log" 2>&1 \
        || { cat "$log"; exit 1; }
}

# run_tests PRESET: those of a build, as many at a time as there are processors.
run_tests() {
    ctest --test-dir "$(folder_of "$1")" --output-on-failure --parallel "$(nproc)"
}

# open_application TARGET FOLDER HEADLESS [ARGUMENT]...: builds an application and starts it where the caller
# stands. Without a display it can only write files: those that HEADLESS asks for, unless the arguments do.
open_application() {
    local target=$1 headless=$3 program
    program=$PWD/$(folder_of release)/$2/$1
    local packages=("${build_packages[@]}" "${font_packages[@]}")
    shift 3
    [ -z "${WAYLAND_DISPLAY:-}" ] || packages+=("${wayland_packages[@]}")
    need "${packages[@]}"
    build release "$target"
    cd "$caller"
    case " $* " in
        *" --picture"* | *" --samples"* | *" --help "* | *" -h "* | *" --version "* | *" -v "*)
            exec "$program" "$@"
            ;;
    esac
    [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || exec "$program" "$@"

    # shellcheck disable=SC2086 # several words
    "$program" $headless "$@"
    echo "There is no display to open a window on: instead, this was written to ${headless##* }"
}
