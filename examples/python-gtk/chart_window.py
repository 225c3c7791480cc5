#!/usr/bin/python3
"""A GTK window around the chart: chart_window.py PREFIX [SYMBOL], on X11."""
import subprocess
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gio, GLib, Gtk

SYMBOLS = ["SIM.CALM", "SIM.WILD"]


class ChartWindow(Gtk.Window):
    def __init__(self, prefix, symbol):
        super().__init__(title="A chart in GTK")
        self.set_default_size(900, 640)
        self.choice = Gtk.ComboBoxText()
        for entry in [symbol] + [other for other in SYMBOLS if other != symbol]:
            self.choice.append_text(entry)
        self.choice.set_active(0)
        self.choice.connect("changed", self.on_choice)
        self.socket = Gtk.Socket()
        self.socket.connect("plug-removed", lambda _: self.close())
        box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
        box.pack_start(self.choice, False, False, 0)
        box.pack_start(self.socket, True, True, 0)
        self.add(box)
        self.connect("destroy", Gtk.main_quit)
        self.show_all()
        # The program ends by itself when this window goes away.
        self.chart = subprocess.Popen([prefix + "/bin/zantroq-chart", "--into", str(self.socket.get_id()), symbol])

    def on_choice(self, choice):
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        value = GLib.Variant("(ssv)", ("org.zantroq.Chart1", "StockSymbol", GLib.Variant("s", choice.get_active_text())))
        bus.call(f"org.zantroq.Chart.pid{self.chart.pid}", "/org/zantroq/Chart/1", "org.freedesktop.DBus.Properties",
                 "Set", value, None, Gio.DBusCallFlags.NONE, -1, None, None)


if len(sys.argv) < 2:
    sys.exit("usage: chart_window.py PREFIX [SYMBOL]")
window = ChartWindow(sys.argv[1], sys.argv[2] if len(sys.argv) > 2 else SYMBOLS[0])
Gtk.main()
