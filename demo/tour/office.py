# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""The steps with the queue "office": the printer, presets, search, undo, conflicts, the preview, and a held job."""

import os
import re
import shutil
import subprocess

from session import Program, expect, wait
from steps import DOCUMENT, find, go_to, is_on, shows, step

PRESETS = os.path.expanduser("~/.cups/lpoptions")  # read by all print programs of the user
PRESET = "Handout"
PER_SIDE, BORDER, TYPE, SIDES = "Pages per side:", "Border:", "Paper Type:", "Two-Sided Printing:"
SIZE, STAPLE, PUNCH = "Media Size:", "Staple:", "Hole Punch:"
HOLD, PRIORITY = "Print:", "Priority:"
TONER = "Toner Save"
CHECK_BOX = 10  # pixels from the left edge of a thumbnail to a point in its check box
HIGHLIGHT, METAL, HOLE = (48, 140, 198), (80, 80, 80), (239, 239, 239)  # binding edge, staples and holes


def settings_are(d, name):
    return d.get("button", "Settings: " + name + " ").name.strip()


def pick_settings(d, entry):
    d.pick(d.get("button", "Settings:"), entry)


def saved(preset=PRESET):
    """The options of a preset as other programs read them, or None."""
    try:
        with open(PRESETS) as file:
            lines = file.read().splitlines()
    except FileNotFoundError:
        return None
    return next((line.split(" ", 2)[2] for line in lines if line.split(" ")[1:2] == ["office/" + preset]), None)


def wait_saved(option):
    return wait("%s in %s" % (option, PRESETS), lambda: saved() if option in (saved() or "").split() else None)


@step("opened", lambda session: Program(
    session, [shutil.which("kelmar-print"), "-d", "office", DOCUMENT]))
def opened(d):
    window = d.get("dialog", "Print “handout.pdf”")
    return "kelmar-print -d office handout.pdf opened the window %s. Preview: %s" % (
        window.name, d.says("Page 1 of 8"))


@step("printer")
def printer(d):
    state = d.get("label", "Ready")
    tip = d.tooltip(state, "Black Toner")
    expect("no tray in “%s”" % tip, "Tray 1 (A4)" in tip)
    return "The printer is “%s”. The tooltip: %s" % (state.name, tip)


@step("cost")
def cost(d):
    before = d.says("8 sheets, color")
    d.keys("alt+c")
    d.focus_on("Copies")
    d.keys("ctrl+a", "3")
    return "The footer shows what the job takes: %s. Alt+C, typed 3 copies: %s" % (before, d.says("24 sheets, color"))


@step("one-copy")
def one_copy(d):
    d.keys("ctrl+a", "1")
    return "1 copy again: %s" % d.says("8 sheets, color")


@step("paper-missing")
def paper_missing(d):
    d.choose(SIZE, "A5")
    return "Chose A5, which is in no tray. %s: %s" % (d.says("Paper not loaded"), d.says("“A5” is not loaded"))


@step("paper-loaded")
def paper_loaded(d):
    d.keys("ctrl+z")
    shows(d, SIZE, "A4")
    wait("the end of the notice", lambda: not any("not loaded" in text for text in d.texts()))
    return "Ctrl+Z: A4 again, and the notice is gone"


@step("options")
def options(d):
    d.choose(PER_SIDE, "2")
    shows(d, PER_SIDE, "2")
    d.choose(BORDER, "Thin line")
    shows(d, BORDER, "Thin line")
    return "Chose 2 pages per side with a thin line around each. Preview: %s. %s" % (
        d.says("Page 1 of 4"), settings_are(d, "Defaults (changed)"))


@step("name-preset")
def name_preset(d):
    pick_settings(d, "Save As")
    window = d.get("dialog", "Save Settings")
    d.type(PRESET)
    wait("the name in the field", lambda: any(
        node.queryText().getText(0, -1) == PRESET for node in d.all("text", window)))
    return "Settings, Save As: typed the name “%s”" % PRESET


@step("preset-made")
def preset_made(d):
    d.keys("Return")
    there = wait_saved("number-up=2")
    return "Return: %s. ~/.cups/lpoptions has office/%s: %s" % (settings_are(d, PRESET), PRESET, there)


@step("defaults")
def defaults(d):
    pick_settings(d, "Printer’s Defaults")
    shows(d, PER_SIDE, "1")
    shows(d, BORDER, "None")
    return "%s: 1 page per side, no border. Preview: %s" % (
        settings_are(d, "Printer’s Defaults"), d.says("Page 1 of 8"))


@step("preset-applied")
def preset_applied(d):
    pick_settings(d, PRESET)
    shows(d, PER_SIDE, "2")
    shows(d, BORDER, "Thin line")
    return "%s: 2 pages per side, thin line. Preview: %s" % (settings_are(d, PRESET), d.says("Page 1 of 4"))


@step("preset-changed")
def preset_changed(d):
    d.choose(PER_SIDE, "4")
    before = settings_are(d, PRESET + " (changed)")
    pick_settings(d, "Save “%s”" % PRESET)
    there = wait_saved("number-up=4")
    return "Chose 4 pages per side (%s) and saved it: %s. The file now: %s" % (
        before, settings_are(d, PRESET), there)


@step("search")
def search(d):
    d.keys("ctrl+f")
    d.focus_on("Find a setting")
    d.type("toner")
    found = d.get("list", "Settings found")
    lines = [re.sub("\u200e", "", node.name) for node in d.all("list item", found)]
    expect("%s is not the first of %s" % (TONER, lines), lines and TONER in lines[0])
    return "Ctrl+F, typed “toner”. Found: %s" % "; ".join(lines)


@step("found")
def found(d):
    d.keys("Return")
    control = d.focus_on(TONER)
    expect("the page is not shown", d.now("label", "Color Settings 1"))
    return "Return: Color Settings 1 is open, the keyboard is on the %s “%s”" % (control.getRoleName(), control.name)


@step("changed")
def changed(d):
    d.keys("space")
    is_on(d, TONER, True)
    return "Space: it is on, and marked: %s" % d.get("check box", TONER).description


@step("changes")
def changes(d):
    go_to(d, "Summary")
    box = d.get("check box", "Show changes only")
    d.click(box)
    line = d.says("Off → On")
    return "Summary, “Show changes only”: %s" % line


@step("undone")
def undone(d):
    d.keys("ctrl+z")
    said = d.says("Nothing has been changed.")
    go_to(d, "Color Settings 1")
    is_on(d, TONER, False)
    return "Ctrl+Z: the summary says “%s”, “Toner Save” is off" % said


@step("redone")
def redone(d):
    d.keys("ctrl+shift+z")
    is_on(d, TONER, True)
    return "Ctrl+Shift+Z: “Toner Save” is on again"


@step("conflict")
def conflict(d):
    go_to(d, "General")
    d.choose(TYPE, "Thick Paper 1")
    shows(d, TYPE, "Thick Paper 1")
    d.choose(SIDES, "Long-Edge Binding")
    said = d.says("is not available now")
    expect("“%s” was taken without a question" % SIDES, d.box(SIDES).name == "Off")
    return "Chose Thick Paper 1, then two-sided printing, which is greyed with it. %s. %s" % (
        said, d.says("instead of"))


def leads_to(name, act, sides, paper, result):
    """Adds a step that calls `act` and checks the values of two settings that exclude each other."""
    @step(name)
    def check(d):
        act(d)
        shows(d, SIDES, sides)
        shows(d, TYPE, paper)
        return result


leads_to("resolved", lambda d: d.click(d.get("button", "Change and Use It")), "Long-Edge Binding", "Plain Paper",
         "“Change and Use It”: Long-Edge Binding, and Paper Type is Plain Paper")
leads_to("resolution-undone", lambda d: d.keys("ctrl+z"), "Off", "Thick Paper 1",
         "Ctrl+Z takes both back at once: Off, Thick Paper 1")
leads_to("resolution-redone", lambda d: d.keys("ctrl+shift+z"), "Long-Edge Binding", "Plain Paper",
         "Ctrl+Shift+Z: Long-Edge Binding, Plain Paper")


@step("preview")
def preview(d):
    before = d.says("Page 1 of 2")
    expect("no front side in “%s”" % before, "Sheet 1, front" in before)
    d.click(d.get("button", "Next page"))
    after = d.says("Page 2 of 2")
    expect("no back side in “%s”" % after, "Sheet 1, back" in after)
    return "The preview shows %s; “Next page”: %s" % (before, after)


@step("left-out")
def left_out(d):
    d.click(d.get("list item", "2"), CHECK_BOX)
    pale = d.says("Not printed")
    takes = d.says("1 sheet, color")
    return "Cleared the check box of the second thumbnail, which leaves the page out: %s; %s" % (pale, takes)


@step("taken-in")
def taken_in(d):
    d.keys("space")
    return "Space takes it in again: %s" % d.says("1 sheet, 2 sides, color")


@step("enlarged")
def enlarged(d):
    d.keys("ctrl+plus", "ctrl+plus", "ctrl+plus")
    return "Ctrl++, three times: the page is enlarged %s" % d.says("2×")


@step("whole-again")
def whole_again(d):
    d.keys("ctrl+0")
    return "Ctrl+0: the whole page, %s" % d.says("1×")


def drawn(d, color):
    """The number of pixels of the preview that have the color."""
    return d.pixels(d.get("image", "Preview"), color)


@step("binding-edge")
def binding_edge(d):
    d.click(d.get("button", "Previous page"))
    side = d.says("Sheet 1, front")
    wait("the binding edge in the preview", lambda: drawn(d, HIGHLIGHT) > 100)
    return "%s is %s: the preview of the front marks the binding edge (%s)" % (SIDES[:-1], d.box(SIDES).name, side)


def finishes(name, label, choice, color):
    """Adds a step that selects a finishing choice and checks that the preview draws it in the color."""
    @step(name)
    def check(d):
        before = drawn(d, color)
        d.choose(label, choice)
        shows(d, label, choice)
        wait("“%s” in the preview" % choice, lambda: drawn(d, color) > before + 20)
        return "More Options, %s %s: the preview shows it" % (label, choice)


@step("finishing")
def finishing(d):
    go_to(d, "More Options")
    shows(d, STAPLE, "Off")
    return "More Options: %s %s, %s %s" % (STAPLE, d.box(STAPLE).name, PUNCH, d.box(PUNCH).name)


finishes("stapled", STAPLE, "Upper Left", METAL)
finishes("punched", PUNCH, "Left Edge", HOLE)


@step("finish-undone")
def finish_undone(d):
    d.keys("ctrl+z", "ctrl+z")
    shows(d, STAPLE, "Off")
    shows(d, PUNCH, "Off")
    d.click(d.get("button", "Next page"))
    return "Ctrl+Z twice: neither. “Next page”: %s" % d.says("Sheet 1, back")


@step("scaled")
def scaled(d):
    number = find(d, "Scale")
    d.keys("Down", "Down", "Down", "Down", "Down", "Down")
    wait("a scale of 70 %", lambda: number.queryValue().currentValue == 70)
    return "Ctrl+F, “Scale”, Down six times: the pages are printed at 70 % of their size"


@step("scale-undone")
def scale_undone(d):
    number = d.get("spin button", "Scale")
    d.keys("ctrl+z")
    wait("a scale of 100 %", lambda: number.queryValue().currentValue == 100)
    return "Ctrl+Z: 100 %"


@step("mirrored")
def mirrored(d):
    find(d, "Mirror image")
    d.keys("space")
    is_on(d, "Mirror image", True)
    return "Ctrl+F, “Mirror image”, Space: it is on"


@step("mirror-undone")
def mirror_undone(d):
    d.keys("ctrl+z")
    is_on(d, "Mirror image", False)
    return "Ctrl+Z: it is off"


@step("booklet")
def booklet(d):
    find(d, "Booklet")
    d.keys("space")
    is_on(d, "Booklet", True)
    shows(d, SIDES, "Short-Edge Binding")
    d.says("Page 2 of 4")
    d.click(d.get("button", "Previous page"))
    return "Ctrl+F, “Booklet”, Space: %s is %s. Preview: %s. %s" % (
        SIDES[:-1], d.box(SIDES).name, d.says("Sheet 1, front"), d.says("2 sheets, 4 sides, color"))


@step("booklet-undone")
def booklet_undone(d):
    d.keys("ctrl+z")
    is_on(d, "Booklet", False)
    shows(d, SIDES, "Long-Edge Binding")
    shows(d, PER_SIDE, "4")
    return "Ctrl+Z: %s. %s" % (d.box(SIDES).name, d.says("1 sheet, 2 sides, color"))


@step("job")
def job(d):
    go_to(d, "Job")
    d.choose(HOLD, "When it is released")
    shows(d, HOLD, "When it is released")
    d.choose(PRIORITY, "High")
    shows(d, PRIORITY, "High")
    d.keys("Tab", "Tab", "Tab")
    d.focus_on("Billing information")
    d.type("Project 7")
    go_to(d, "Summary")
    return "Job: printed when it is released, priority High, billing information “%s”" % d.says("Project 7")


@step("sent")
def sent(d):
    d.keys("ctrl+p")
    return "Ctrl+P: %s" % d.says("Sent to “office”")


@step("held")
def held(d):
    return "The print server holds the job: %s" % d.says(": on hold")


@step("job-ended")
def job_ended(d):
    d.click(d.get("button", "Release"))
    job = wait("the end of the job", lambda: next(
        (text for text in d.texts() if re.match(r"Job \d+: done", text)), None))
    return "Release: the job is followed to its end: %s" % job.replace("\n", ", ")


@step("opened-again", lambda session: Program(
    session, [shutil.which("kelmar-print"), "-d", "office/" + PRESET, DOCUMENT]))
def opened_again(d):
    shows(d, PER_SIDE, "4")
    shows(d, BORDER, "Thin line")
    return "kelmar-print -d office/%s opens with the preset: %s, 4 pages per side, thin line" % (
        PRESET, settings_are(d, PRESET))


@step("delete-preset")
def delete_preset(d):
    pick_settings(d, "Delete “%s”" % PRESET)
    return "Settings, Delete: %s" % d.says("Delete the preset")


@step("preset-deleted")
def preset_deleted(d):
    d.keys("alt+d")
    wait("the end of the preset", lambda: saved() is None)
    shows(d, "Printer:", "office")
    return "Delete: %s, and the printer is “%s” again" % (settings_are(d, "Defaults"), d.box("Printer:").name)


def show_presets():
    print("== The preset is gone")
    seen = subprocess.run(["lpoptions", "-p", "office/" + PRESET], stdout=subprocess.PIPE, check=False).stdout.decode()
    expect("lpoptions still has %s: %s" % (PRESET, seen), "number-up=4" not in seen)
    expect("%s still has %s" % (PRESETS, PRESET), saved() is None)
    print("   ~/.cups/lpoptions has no office/%s, and lpoptions -p office/%s names none of its options" % (
        PRESET, PRESET))
