# shellcheck shell=bash
# Runs a program on a display of its own. To be sourced after common.sh.

# run_on_own_display SCREENSHOT PROGRAM [ARGUMENT...]
# Starts a virtual display, a window manager and a session bus, and the program on them; takes a
# screenshot once the program's window is there; exits as the program does. All of it goes when
# the program ends, or when this script is told to stop.
run_on_own_display() {
    local screenshot=$1
    shift

    own_folder=$(mktemp -d)
    own_processes=()
    trap stop_own_processes EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM

    rm -f "$screenshot"
    start_display
    start_session
    say "There is no display here, so Tavlo starts on one of its own, $DISPLAY."

    # Whatever platform the surroundings ask for, the display is an X server.
    QT_QPA_PLATFORM=xcb "$@" &
    local program=$!
    own_processes+=("$program")

    if take_screenshot "$program" "$screenshot"; then
        say "A screenshot of its window is in $screenshot"
        say "Tavlo keeps running. Press Ctrl+C to end it."
    elif running "$program"; then
        say "No window has appeared within $seconds_for_a_window seconds. Press Ctrl+C to end Tavlo."
    fi

    local status=0
    wait "$program" || status=$?
    exit "$status"
}

seconds_for_a_window=60

start_display() {
    # Only who has the cookie may draw on the display and type into it. A server takes any entry
    # of its file, whatever display it names; the display's number is known only once it runs.
    local cookie number
    cookie=$(mcookie)
    xauth -q -f "$own_folder/server-cookie" add :0 . "$cookie" 2>/dev/null

    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset \
        -auth "$own_folder/server-cookie" \
        3>"$own_folder/number" >"$own_folder/display.log" 2>&1 &
    own_processes+=($!)
    if ! within 20 test -s "$own_folder/number"; then
        cat "$own_folder/display.log" >&2
        die "The virtual display did not start."
    fi
    read -r number <"$own_folder/number"

    export DISPLAY=:$number XAUTHORITY=$own_folder/cookie
    xauth -q add "$DISPLAY" . "$cookie" 2>/dev/null
    unset WAYLAND_DISPLAY
}

start_session() {
    if [[ -z ${XDG_RUNTIME_DIR:-} ]]; then
        export XDG_RUNTIME_DIR=$own_folder
    fi

    dbus-daemon --session --nofork --nopidfile --address="unix:dir=$own_folder" \
        --print-address=3 3>"$own_folder/address" >"$own_folder/bus.log" 2>&1 &
    own_processes+=($!)
    if ! within 20 test -s "$own_folder/address"; then
        cat "$own_folder/bus.log" >&2
        die "The session bus did not start."
    fi
    read -r DBUS_SESSION_BUS_ADDRESS <"$own_folder/address"
    export DBUS_SESSION_BUS_ADDRESS

    XDG_CACHE_HOME=$own_folder openbox --sm-disable >"$own_folder/manager.log" 2>&1 &
    own_processes+=($!)
    if ! within 20 window_manager_is_there; then
        cat "$own_folder/manager.log" >&2
        die "The window manager did not start."
    fi
}

window_manager_is_there() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# take_screenshot PROCESS FILE: fails if the process ends or shows no window in good time.
take_screenshot() {
    local program=$1 screenshot=$2
    local window='' previous='' colours=0 try
    for ((try = 0; try < seconds_for_a_window * 2; ++try)); do
        running "$program" || return 1
        window=$(xdotool search --onlyvisible --pid "$program" 2>/dev/null | head -n 1) || true
        [[ -z $window ]] || break
        sleep 0.5
    done
    [[ -n $window ]] || return 1

    # The window is there before its first picture is: wait for one that is more than an empty
    # sheet, and that the opening animations no longer change.
    mkdir -p "${screenshot%/*}"
    for ((try = 0; try < 20; ++try)); do
        running "$program" || return 1
        sleep 0.5
        import -silent -window root "$screenshot" || continue
        colours=$(import -silent -window "$window" png:- | identify -format %k -) || continue
        picture=$(cksum <"$screenshot")
        if ((colours > 1)) && [[ $picture == "$previous" ]]; then
            break
        fi
        previous=$picture
    done
    [[ -s $screenshot ]]
}

running() {
    kill -0 "$1" 2>/dev/null
}

# within SECONDS COMMAND...: repeats the command until it succeeds.
within() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

stop_own_processes() {
    local status=$? i
    trap '' HUP INT TERM
    # The newest first: a program is not left without its display.
    for ((i = ${#own_processes[@]} - 1; i >= 0; --i)); do
        kill "${own_processes[i]}" 2>/dev/null || true
        wait "${own_processes[i]}" 2>/dev/null || true
    done
    rm -rf "$own_folder"
    exit "$status"
}
