"""A file manager that writes what it is asked to show into a file, one address a line.

`python -m tests.e2e.driver.file_manager FILE`: says "ready" once it can be asked.
"""

import sys

from gi.repository import Gio, GLib

_NAME = "org.freedesktop.FileManager1"
_INTERFACE = f"""
<node><interface name="{_NAME}"><method name="ShowItems">
  <arg type="as" direction="in"/><arg type="s" direction="in"/>
</method></interface></node>
"""


def main():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    interface = Gio.DBusNodeInfo.new_for_xml(_INTERFACE).interfaces[0]

    def call(_bus, _sender, _path, _interface, _method, arguments, invocation):
        with open(sys.argv[1], "a", encoding="utf-8") as shown:
            shown.writelines(address + "\n" for address in arguments.unpack()[0])
        invocation.return_value(None)

    bus.register_object("/" + _NAME.replace(".", "/"), interface, call, None, None)
    Gio.bus_own_name_on_connection(
        bus, _NAME, Gio.BusNameOwnerFlags.NONE, lambda *_: print("ready", flush=True), None
    )
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
