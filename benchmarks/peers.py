"""What people use instead, each set to one sample every two seconds or, where it cannot, to its slowest."""
from collections import namedtuple

# command: the words; files: to be written into the home; environment: beside the desktop's.
Peer = namedtuple("Peer", "command files environment", defaults=({}, {}))

CONKY = """conky.config = { update_interval = 2, own_window = true, own_window_type = 'override', double_buffer = true,
    use_xft = true, font = 'DejaVu Sans:size=10', background = false, minimum_width = 200 }
conky.text = [[Memory: $mem of $memmax ($memperc %)
${membar 8}]]
"""

# The monitors' second is fixed.
LXPANEL = """Global {
    edge=bottom
    widthtype=percent
    width=100
    height=26
}
Plugin {
    type=monitors
    Config {
        DisplayCPU=0
        DisplayRAM=1
        RAMColor=#FF0000
    }
}
"""

# Once a second is its slowest.
GKRELLM = "update_HZ 1\n"

SYSTEM_MONITOR = """[org/gnome/gnome-system-monitor]
update-interval=2000
graph-update-interval=2000
"""

PEERS = {
    "conky": Peer(["conky", "-q"], {".config/conky/conky.conf": CONKY}),
    "gkrellm": Peer(["gkrellm"], {".gkrellm2/user-config": GKRELLM}),
    "lxpanel": Peer(["lxpanel"], {".config/lxpanel/default/panels/panel": LXPANEL}),
    "gnome-system-monitor": Peer(["gnome-system-monitor", "--show-resources-tab"],
                                 {".config/glib-2.0/settings/keyfile": SYSTEM_MONITOR},
                                 {"GSETTINGS_BACKEND": "keyfile", "NO_AT_BRIDGE": "1"}),
}
