"""A small notification area over the session bus: watcher and host of the StatusNotifierItem protocol in one.

Prints the tip of each icon that registers, on a line of its own. A number on standard input is a mouse button pressed
and released on the icon that came last: 1 left, 2 middle, 3 right.
Protocol: freedesktop.org, StatusNotifierItem.
"""

import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
PROPERTIES = "org.freedesktop.DBus.Properties"
CLICKS = {"1": "Activate", "2": "SecondaryActivate", "3": "ContextMenu"}


class Watcher(dbus.service.Object):
    def __init__(self, bus):
        self._bus = bus
        self._items = []  # (bus name, path)
        self._service = dbus.service.BusName(WATCHER, bus, do_not_queue=True)
        super().__init__(bus, "/StatusNotifierWatcher")

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender=None):
        item = (sender, service) if service.startswith("/") else (service, "/StatusNotifierItem")
        self._items.append(item)
        self.StatusNotifierItemRegistered("".join(item))
        GLib.idle_add(self._tell, item)

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierHost(self, _service):
        pass

    @dbus.service.signal(WATCHER, signature="s")
    def StatusNotifierItemRegistered(self, service):
        pass

    @dbus.service.method(PROPERTIES, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return self.GetAll(interface)[name]

    @dbus.service.method(PROPERTIES, in_signature="s", out_signature="a{sv}")
    def GetAll(self, _interface):
        registered = dbus.Array(["".join(item) for item in self._items], signature="s")
        return {"IsStatusNotifierHostRegistered": True, "ProtocolVersion": dbus.Int32(0),
                "RegisteredStatusNotifierItems": registered}

    def _tell(self, item):
        tip = dbus.Interface(self._bus.get_object(*item), PROPERTIES).Get(ITEM, "ToolTip")
        print(str(tip[2]), flush=True)

    def click(self, button):
        method = dbus.Interface(self._bus.get_object(*self._items[-1]), ITEM).get_dbus_method(CLICKS[button])
        method(dbus.Int32(0), dbus.Int32(0), reply_handler=lambda: None, error_handler=print)


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    watcher = Watcher(dbus.SessionBus())

    def read(_channel, _condition):
        line = sys.stdin.readline()
        if line:
            watcher.click(line.strip())
        return bool(line)

    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, read)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
