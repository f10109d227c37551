#!/bin/sh
# Starts the installed application. A symbolic link would change the application's name, which follows its first argument.
exec /usr/lib/configtools/ConfigTools "$@"
