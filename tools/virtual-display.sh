#!/usr/bin/env bash
# To be sourced: a virtual X display with a window manager, for scripts that show windows.

# within SECONDS COMMAND...: tries the command until it succeeds; fails when the time is over.
within() {
    local tries=$((10 * $1))
    shift
    until "$@"; do
        [ "$((tries -= 1))" -gt 0 ] || return 1
        sleep 0.1
    done
}

has_ended() { ! kill -0 "$1" 2>/dev/null; }
has_manager() { wmctrl -m >/dev/null 2>&1; }

# end PROCESS: asks it to end, and makes it end when it does not.
end() {
    kill "$1" 2>/dev/null || return 0
    within 5 has_ended "$1" || kill -KILL "$1" 2>/dev/null || true
}

end_display() {
    end "$display_manager"
    end "$display_server"
}

# start_display SIZE: sets DISPLAY; end_display when done. A window that is shown, or asked to close,
# before the manager announces itself might never be managed, so that is waited for. Neither process
# gets a descriptor of ours, which would keep whoever reads our output waiting for them.
start_display() {
    local number
    exec 3< <(exec Xvfb -displayfd 1 -noreset -screen 0 "$1x24" -nolisten tcp </dev/null 2>/dev/null)
    display_server=$!
    if ! read -r -t 20 number <&3; then
        echo "Xvfb does not start" >&2
        kill "$display_server" 2>/dev/null || true
        return 1
    fi
    export DISPLAY=:$number
    openbox </dev/null >/dev/null 2>&1 3<&- &
    display_manager=$!
    if ! within 20 has_manager; then
        echo "openbox does not start" >&2
        end_display
        return 1
    fi
}
