#!/usr/bin/python3
"""A D-Bus server that passes for a Viewcast viewer of the bus name given, but whose application
object lacks the viewer's own interface (it offers only the dispatch interface): what a version 9
viewer broken in that way looks like to its callers. It ends when its bus does."""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

PREFIX = "com.corvane.VcModelViewer."
APPLICATION = "/VcModelViewer/Application"


class Server(dbus.service.Object):
    @dbus.service.method("org.freedesktop.DBus.Properties", in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        if interface == PREFIX + "VcstViewer" and name == "GetVcModelViewApp":
            return dbus.ObjectPath(APPLICATION)
        raise dbus.exceptions.DBusException("no such property", name=PREFIX + "Error")


class Application(dbus.service.Object):
    @dbus.service.method(PREFIX + "IDispatch", in_signature="iav", out_signature="v")
    def Invoke(self, dispatch_id, arguments):
        return dbus.Boolean(False, variant_level=1)


def main() -> None:
    if len(sys.argv) != 2:
        sys.exit("usage: faceless-viewer.py BUSNAME")
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    name = dbus.service.BusName(sys.argv[1], bus)
    Server(name, "/VcModelViewer/VcstViewer")
    Application(name, APPLICATION)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
