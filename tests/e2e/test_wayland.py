"""Kelvo in a Wayland session, where windows neither know nor choose their place."""
import json
import unittest

from case import LABELS, DesktopTest


class Wayland(DesktopTest):
    programs = ["sway", "watcher"]

    def place(self):
        """Kelvo's window as (x, y, width, height); None if it is not shown."""
        def search(node):
            if node.get("app_id") == "kelvo":
                return tuple(node["rect"][key] for key in ("x", "y", "width", "height"))
            return next(filter(None, map(search, node["nodes"] + node["floating_nodes"])), None)
        return search(json.loads(self.desktop.run("swaymsg", "-t", "get_tree")))

    def mouse(self, x, y, *then):
        self.desktop.run("xdotool", "mousemove", x, y, "sleep", 0.2, *then)

    def test_window(self):
        self.kelvo.store({"NoTitleBar": True, "RemindThreshold": 2.5}, **{"MainWindow/Position": [200, 150]})
        item = self.start()
        self.assertBecomes(lambda: self.place() is not None, True)
        self.assertEqual(self.kelvo.labels(), LABELS)

        x, y, width, height = self.place()
        self.mouse(x + 60, y + 8, "mousedown", 1)
        for _ in range(10):
            self.desktop.run("xdotool", "mousemove_relative", 10, 10, "sleep", 0.02)
        self.desktop.run("xdotool", "mouseup", 1)
        self.assertBecomes(self.place, (x + 100, y + 100, width, height))

        self.mouse(x + 111, y + 111, "click", 1)
        self.assertBecomes(self.place, None)
        item.activate()
        self.assertBecomes(lambda: self.place() is not None, True)

        self.assertEqual(self.kelvo.stop(), 0)
        stored = self.kelvo.settings()
        self.assertEqual(stored["Application/Settings"]["RemindThreshold"], 2.5)
        self.assertEqual(stored["MainWindow/Position"], [200, 150], "a place that Kelvo cannot know is stored")

    def test_second_launch(self):
        self.kelvo.store({"HideAtStartUp": True})
        self.start()
        self.assertEqual(self.kelvo.run(), 0)
        self.assertBecomes(lambda: self.place() is not None, True)


if __name__ == "__main__":
    unittest.main()
