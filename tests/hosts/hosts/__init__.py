"""Every host that is tried, in the order of the table."""

from hosts.gnome import Gnome
from hosts.lxqt import Lxqt
from hosts.mate import Mate
from hosts.plasma import Plasma
from hosts.sway import Sway
from hosts.trayer import Trayer
from hosts.xfce import Xfce

HOSTS = [
    Xfce(),
    Xfce("120 DPI", dpi=120),
    Xfce("scale 1.25", environment={"QT_SCALE_FACTOR": "1.25"}),
    Xfce("scale 2", environment={"QT_SCALE_FACTOR": "2"}, screen="2560x1600"),
    Xfce("vertical", mode=1, size=40),
    Xfce("square icons", square="true"),
    Mate(),
    Mate("vertical", orientation="left", size=40),
    Lxqt(),
    Trayer(26),
    Trayer(16),
    Sway("waybar"),
    Sway("swaybar"),
    Plasma(),
    Plasma(wayland=True),
    Gnome(),
    Gnome(wayland=True),
]
