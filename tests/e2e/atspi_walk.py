#!/usr/bin/python3
"""Walks the running calculator's accessibility tree over AT-SPI, as a screen reader
sees it: every object the user can reach must have a name and a role. Then presses
"seven" through its accessible action and reads the display's name back, and opens
the advanced features and walks again.
  atspi_walk.py APPLICATION_NAME"""
import sys
import time

import pyatspi

# Roles that carry no name of their own on any desktop: a separator line, and the
# popup of a menu, which its menu item names.
UNNAMED_ROLES = {"separator"}


def find_app(name, seconds=15):
    end = time.time() + seconds
    while time.time() < end:
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            app = desktop.getChildAtIndex(i)
            if app is not None and app.name == name:
                return app
        time.sleep(0.2)
    return None


def walk(node, path, found):
    role = node.getRoleName()
    here = f"{path}/{role}:{node.name}"
    found.append((here, role, node))
    for i in range(node.childCount):
        child = node.getChildAtIndex(i)
        if child is not None:
            walk(child, here, found)


def check(app, stage):
    found = []
    walk(app, "", found)
    nameless = [p for p, role, _ in found if role not in UNNAMED_ROLES and not p.rsplit(":", 1)[1]]
    unknown = [p for p, role, _ in found if role in ("unknown", "invalid")]
    print(f"{stage}: {len(found)} objects")
    for p in nameless:
        print(f"  no name: {p}")
    for p in unknown:
        print(f"  no role: {p}")
    return found, not nameless and not unknown


def named(found, role, name):
    return next((n for _, r, n in found if r == role and n.name == name), None)


def press(node):
    action = node.queryAction()
    for i in range(action.nActions):
        if action.getName(i) in ("Press", "press", "click"):
            action.doAction(i)
            return
    action.doAction(0)


def wait_for(predicate, seconds=5):
    end = time.time() + seconds
    while time.time() < end:
        if predicate():
            return True
        time.sleep(0.1)
    return False


def main():
    app = find_app(sys.argv[1])
    if app is None:
        print("FAIL: the application is not on the accessibility bus")
        return 1
    found, ok = check(app, "simple mode")
    seven = named(found, "push button", "seven")
    if seven is None:
        print("FAIL: no push button named seven")
        return 1
    press(seven)
    if not wait_for(lambda: any(r == "label" and n.name == "7" for _, r, n in
                                (lambda f: (walk(app, "", f), f)[1])([]))):
        print("FAIL: the display does not announce 7 after pressing seven")
        return 1
    print("the display announces 7")
    advanced = named(found, "push button", "show advanced features")
    if advanced is None:
        print("FAIL: no push button named show advanced features")
        return 1
    press(advanced)
    if not wait_for(lambda: any(r == "page tab" for _, r, _ in
                                (lambda f: (walk(app, "", f), f)[1])([]))):
        print("FAIL: the tab pages did not appear")
        return 1
    time.sleep(0.5)  # the window's size animation
    found, ok_advanced = check(app, "advanced mode")
    return 0 if ok and ok_advanced else 1


if __name__ == "__main__":
    sys.exit(main())
