# What the project's scripts share; sourced, not run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '%s\n' "$*"; }
fail() { printf '%s\n' "$*" >&2; exit 1; }

# Whether 32-bit programs run under Wine: the package is there, and the kernel runs such programs.
has_wine32() { /usr/lib/wine/wine --version >/dev/null 2>&1; }

# The preset of the Windows program that this machine can run.
windows_preset() { if has_wine32; then echo win32; else echo win64; fi; }

# Says which program is used where it is not the one that is shipped.
announce_windows_preset() {
    has_wine32 || say "This machine has no 32-bit Wine: the 64-bit program is used instead of the 32-bit one."
}

# Builds targets of the Windows program that this machine can run, without the tests, and prints the folder of the build.
build_targets() {
    local preset build log=$root/build/logs/program.log
    preset=$(windows_preset)
    build=$root/build/program-$preset
    mkdir -p "$root/build/logs"
    {
        cmake -S "$root" --preset "$preset" -B "$build" -DVEXA_TESTS=OFF &&
            cmake --build "$build" -j "$(nproc)" --target "$@"
    } >"$log" 2>&1 </dev/null || { tail -n 40 "$log" >&2; fail "The build failed; all of it is in $log"; }
    echo "$build"
}

# The program in the folder of a build.
program_of() { find "$1" -name vexa.exe -print -quit; }

# Builds the program that this machine can run, without the tests, and prints its path.
build_program() {
    local build
    build=$(build_targets vexa)
    program_of "$build"
}

# Ends a process that this script has started, and waits until it has ended.
end_process() {
    kill "$1" 2>/dev/null || return 0
    wait "$1" 2>/dev/null || true
}

# Starts a virtual display on a free number and sets DISPLAY; its process id is in xvfb_pid.
start_virtual_display() {
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$number_file" >/dev/null 2>"$number_file.said" &
    xvfb_pid=$!
    while [ ! -s "$number_file" ]; do
        kill -0 "$xvfb_pid" 2>/dev/null || fail "The virtual display did not start: $(cat "$number_file.said")"
        sleep 0.05
    done
    DISPLAY=:$(cat "$number_file")
    export DISPLAY
    rm -f "$number_file" "$number_file.said"
}
