# shellcheck shell=bash
# Functions that the other scripts source.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# build_preset <preset> <log file> [<target>...]: configures a preset if necessary, and builds it. Prints output only on
# failure. A lock prevents two builds of a preset at the same time.
build_preset() {
    local preset=$1 log=$2
    shift 2
    local directory=$root/build/$preset
    mkdir -p "$directory"
    (
        cd "$root"
        flock 9
        {
            # Ninja configures again after a change of a CMakeLists.txt, but not after a change of the presets.
            if [[ ! -e $directory/build.ninja || CMakePresets.json -nt $directory/build.ninja ]]; then
                cmake --preset "$preset"
            fi && cmake --build --preset "$preset" ${1:+--target "$@"}
        } >"$log" 2>&1
    ) 9>"$directory/.build-lock" || {
        tail -n 40 "$log" >&2
        fail "the build failed; all of its output is in ${log#"$root"/}"
    }
}

# use_folders_of_tests <directory>: later processes have their folders and settings in that directory. Files of the user
# are not accessed, and a running tool of the user has another single-instance lock.
use_folders_of_tests() {
    local directory=$1
    mkdir -m 700 "$directory/tmp" "$directory/runtime" "$directory/config" "$directory/cache" "$directory/data"
    export TMPDIR=$directory/tmp
    export XDG_RUNTIME_DIR=$directory/runtime XDG_CONFIG_HOME=$directory/config
    export XDG_CACHE_HOME=$directory/cache XDG_DATA_HOME=$directory/data
    export LC_ALL=C.UTF-8
    export PULSE_SERVER=unix:$directory/no-sound # tests play no sound, and do not start a sound server
    unset LANGUAGE
    export QT_QUICK_CONTROLS_STYLE=Basic
    export ASAN_OPTIONS=detect_leaks=1
    export LSAN_OPTIONS=suppressions=$root/scripts/sanitizer/lsan.supp:print_suppressions=0
    # Libraries that are not built with the sanitizer are ignored: their synchronisation is invisible to it.
    export TSAN_OPTIONS=suppressions=$root/scripts/sanitizer/tsan.supp:print_suppressions=0:ignore_noninstrumented_modules=1
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
}
