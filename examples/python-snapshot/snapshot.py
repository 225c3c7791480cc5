#!/usr/bin/python3
"""Pictures of several symbols from one chart, over the session bus and without a window:
snapshot.py PREFIX FOLDER SYMBOL..."""
import os
import subprocess
import sys

from gi.repository import Gio, GLib

if len(sys.argv) < 4:
    sys.exit("usage: snapshot.py PREFIX FOLDER SYMBOL...")
prefix, folder, symbols = sys.argv[1], os.path.abspath(sys.argv[2]), sys.argv[3:]
process = subprocess.Popen([prefix + "/bin/zantroq-chart"], env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
service = f"org.zantroq.Chart.pid{process.pid}"
loop = GLib.MainLoop()
Gio.bus_watch_name(Gio.BusType.SESSION, service, Gio.BusNameWatcherFlags.NONE, lambda *_: loop.quit(), None)
GLib.timeout_add_seconds(60, loop.quit)
loop.run()
try:
    chart = Gio.DBusProxy.new_for_bus_sync(Gio.BusType.SESSION, Gio.DBusProxyFlags.NONE, None, service,
                                           "/org/zantroq/Chart/1", "org.zantroq.Chart1", None)
    chart.connect("g-properties-changed", lambda _, changed, *__: print("changed:", changed.unpack()))
    for symbol in symbols:
        chart.call_sync("org.freedesktop.DBus.Properties.Set",
                        GLib.Variant("(ssv)", ("org.zantroq.Chart1", "StockSymbol", GLib.Variant("s", symbol))),
                        Gio.DBusCallFlags.NONE, -1, None)
        # Answers once the chart is drawn.
        chart.call_sync("Snapshot", GLib.Variant("(s)", (f"{folder}/{symbol}.png",)), Gio.DBusCallFlags.NONE, -1, None)
    while GLib.MainContext.default().iteration(False):
        pass
except GLib.Error as error:
    sys.exit(error.message)
finally:
    process.terminate()
