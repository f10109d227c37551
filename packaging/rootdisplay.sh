# shellcheck shell=bash
# Functions for commands that the user of a root runs on the virtual display of scripts/with-display.

# give_display <root directory>: the user "installer" of the root can use the display.
give_display() {
    mkdir -p "$1/tmp/.X11-unix" "$1/run/user/1000"
    mount --bind /tmp/.X11-unix "$1/tmp/.X11-unix"
    install -o 1000 -g 1000 -m 600 "$XAUTHORITY" "$1/run/user/authority"
    chown 1000:1000 "$1/run/user/1000"
    chmod 700 "$1/run/user/1000"
}

# take_display <root directory>: undoes give_display.
take_display() {
    umount "$1/tmp/.X11-unix"
}

# as_installer <root directory> [<variable>=<value>...] <command>...: replaces this process by the command, run as
# that user in the home folder.
as_installer() {
    local directory=$1
    shift
    exec chroot "$directory" /usr/bin/setpriv --reuid 1000 --regid 1000 --clear-groups \
        /usr/bin/env -i -C /home/installer PATH=/usr/bin:/bin HOME=/home/installer USER=installer LC_ALL=C.UTF-8 \
        DISPLAY="$DISPLAY" XAUTHORITY=/run/user/authority XDG_RUNTIME_DIR=/run/user/1000 LIBGL_ALWAYS_SOFTWARE=1 "$@"
}
