#!/usr/bin/python3
"""A D-Bus server that takes the bus name given and never answers a call: what a hung viewer
looks like to its callers. It ends when its bus does."""
import sys
import time

import dbus


def main() -> None:
    if len(sys.argv) != 2:
        sys.exit("usage: black-hole.py BUSNAME")
    bus = dbus.SessionBus()
    bus.request_name(sys.argv[1])
    # Without a main loop the calls that arrive are queued and never answered; asking the bus
    # its id now and then notices when the bus has gone.
    while True:
        time.sleep(0.5)
        try:
            bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus",
                              "org.freedesktop.DBus", "GetId", "", ())
        except dbus.exceptions.DBusException:
            return


if __name__ == "__main__":
    main()
