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
