# shellcheck shell=bash
# Shared by the scripts at the top of the checkout, which source it.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# build_preset <preset> <log file> [<target>...]: configures a preset where that is called for, and builds it.
# Quiet unless it fails. One build at a time: a second call waits for the first one.
build_preset() {
    local preset=$1 log=$2
    shift 2
    local directory=$root/build/$preset
    mkdir -p "$directory"
    (
        cd "$root"
        flock 9
        {
            # Ninja configures again by itself when a CMakeLists.txt has changed, not when the presets have.
            if [[ ! -e $directory/build.ninja || CMakePresets.json -nt $directory/build.ninja ]]; then
                cmake --preset "$preset"
            fi && cmake --build --preset "$preset" ${1:+--target "$@"}
        } >"$log" 2>&1
    ) 9>"$directory/.build-lock" || {
        tail -n 40 "$log" >&2
        fail "the build failed; all of its output is in ${log#"$root"/}"
    }
}

# use_folders_of_tests <directory>: what is started from here on has its folders and settings in that directory.
# Nothing of the user's is read or written, and a tool that runs just now holds another single-instance lock.
use_folders_of_tests() {
    local directory=$1
    mkdir -m 700 "$directory/tmp" "$directory/runtime" "$directory/config" "$directory/cache" "$directory/data"
    export TMPDIR=$directory/tmp
    export XDG_RUNTIME_DIR=$directory/runtime XDG_CONFIG_HOME=$directory/config
    export XDG_CACHE_HOME=$directory/cache XDG_DATA_HOME=$directory/data
    export LC_ALL=C.UTF-8
    export PULSE_SERVER=unix:$directory/no-sound # no test plays on a loudspeaker, or starts a sound server by connecting
    unset LANGUAGE
    export QT_QUICK_CONTROLS_STYLE=Basic
    export ASAN_OPTIONS=detect_leaks=1
    export LSAN_OPTIONS=suppressions=$root/scripts/sanitizer/lsan.supp:print_suppressions=0
    # What the libraries of others do inside is not seen, so their accesses are not judged either.
    export TSAN_OPTIONS=suppressions=$root/scripts/sanitizer/tsan.supp:print_suppressions=0:ignore_noninstrumented_modules=1
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
}
