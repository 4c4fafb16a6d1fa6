#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Checks the includes of each folder, the length of files, and the objects that the bundle is linked from. Run by ctest as
include_rules.py WIDGET-HEADERS NINJA BUILD BUNDLE-CODE: Qt's folder of widget headers, the ninja program, the build
folder, and the path of the bundle's shared object.
"""
import pathlib
import posixpath
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
# The folders from which the files of a folder may include.
MODULES = {
    "platform": {"platform"},
    "constraints": {"constraints"},
    "ppd": {"ppd", "constraints", "platform"},
    "plugin": {"plugin", "ppd", "platform"},
    "panelkit": {"panelkit", "plugin", "ppd", "constraints", "platform"},
    "device": {"device", "platform"},
    "panels": {"panels", "panelkit", "plugin", "ppd", "device", "platform"},
    "host": {"host", "constraints", "platform"},
}
# The same between the folders of the host; files in host/ itself may include from all of them. Files in host/window/
# itself may include from all folders of the window.
HOST_FOLDERS = {
    "printing": {"printing"},
    "extensions": {"extensions"},
    "policy": {"policy", "extensions", "printing"},
    "session": {"session", "policy", "extensions", "printing"},
    "preview": {"preview", "printing"},
    "batch": {"batch", "session", "extensions", "preview", "printing"},
    "portal": {"portal", "batch", "window", "window/jobs", "window/look", "window/waiting", "preview", "session", "extensions", "printing", "service"},
    "service": {"service"},
    "backend": {"backend"},
    "window/look": {"window/look"},
    "window/waiting": {"window/waiting", "window/look", "printing"},
    "window/preview": {"window/preview", "window/look", "preview", "session", "printing"},
    "window/pages": {"window/pages", "window/preview", "window/look", "preview", "session", "policy", "printing"},
    "window/printers": {"window/printers", "window/look", "printing"},
    "window/jobs": {"window/jobs", "window/messages", "window/waiting", "window/look", "preview", "session", "printing"},
    "window/messages": {"window/messages", "window/look", "session", "policy", "printing"},
    "window/presets": {"window/presets", "window/look", "session", "printing"},
    "window/guide": {"window/guide", "window/pages", "window/look", "session", "printing"},
}
HOST_FOLDERS["window"] = {module for module in HOST_FOLDERS if module.startswith("window/")} | {"window", "session", "extensions", "printing"}
WITHOUT_WIDGETS = ("ppd/", "device/", "host/printing/", "host/extensions/", "host/policy/", "host/session/",
                   "host/preview/", "host/batch/", "host/service/", "host/backend/")
OURS = MODULES.keys() | {"tests", "simulator", "bench"}
MOST_LINES = {".h": 120, ".cpp": 500, ".c": 500}
IN_BUNDLE = {"constraints", "panelkit", "panels", "plugin", "ppd", "device"}

EXAMPLES = [  # file, header, whether the include is allowed
    ("panels/print_mode_panel.cpp", "panels/print_mode_panel.h", True),
    ("panels/print_mode_panel.cpp", "panels/color_settings_1_panel.h", False),
    ("panels/color_settings_2_panel.cpp", "panels/view_utilities.h", True),
    ("panels/color_settings_1_panel.h", "device/advanced_color_settings.h", True),
    ("plugin/manager.cpp", "panelkit/panel_base.h", False),
    ("plugin/manager.cpp", "ppd/version_info.h", True),
    ("ppd/ppd_model.cpp", "plugin/manager.h", False),
    ("ppd/constraint_table.cpp", "constraints/engine.h", True),
    ("constraints/engine.cpp", "ppd/constraint_table.h", False),
    ("constraints/engine.cpp", "QString", False),
    ("constraints/engine.cpp", "cups/ppd.h", False),
    ("host/printing/ppd_constraints.cpp", "constraints/ppd_rules.h", True),
    ("host/session/dialog_session.cpp", "constraints/ppd_rules.h", False),
    ("ppd/ppd_model.cpp", "QComboBox", False),
    ("ppd/ppd_model.cpp", "cups/ppd.h", True),
    ("panelkit/panel_base.cpp", "cups/ppd.h", False),
    ("host/window/print_window.cpp", "cups/ppd.h", False),
    ("host/window/print_window.cpp", "QtWidgets/QDialog", True),
    ("host/session/dialog_session.cpp", "QtWidgets/QDialog", False),
    ("host/preview/preview.cpp", "host/session/dialog_session.h", False),
    ("host/preview/preview.cpp", "QLabel", False),
    ("host/session/dialog_session.cpp", "ppd/ppd_model.h", False),
    ("host/session/dialog_session.cpp", "host/printing/job.h", True),
    ("host/printing/job.cpp", "host/session/dialog_session.h", False),
    ("host/batch/batch_run.cpp", "host/window/print_window.h", False),
    ("host/window_run.cpp", "host/batch/batch_run.h", True),
    ("host/window/print_window.cpp", "host/window_run.h", False),
    ("host/portal/portal_run.cpp", "host/window_run.h", False),
    ("host/main.cpp", "host/window_run.h", True),
    ("host/window/print_window.cpp", "host/preview/preview.h", False),
    ("host/window/pages/page_book.cpp", "host/window/preview/preview_pane.h", True),
    ("host/window/preview/preview_pane.cpp", "host/window/pages/page_book.h", False),
    ("host/window/print_window.cpp", "./print_window.h", False),
    ("host/window/print_window.cpp", "print_task.h", False),
    ("host/window/pages/page_book.cpp", "../print_task.h", False),
    ("host/portal/portal_run.cpp", "host/service/portal_settings.h", True),
    ("host/service/print_portal.cpp", "host/printing/job.h", False),
    ("host/service/main.cpp", "QApplication", False),
    ("host/session/dialog_session.cpp", "cups/ppd.h", False),
    ("host/printing/ppd_document.cpp", "cups/ppd.h", True),
    ("host/printing/ppd_document.h", "cups/ppd.h", False),
    ("host/printing/job_submitter.cpp", "cups/ppd.h", False),
    ("platform/bundle.cpp", "tests/support/test_bundle.h", False),
    ("device/advanced_color_settings.cpp", "QWidget", True),
    ("device/advanced_color_settings.cpp", "QLabel", False),
    ("device/snmp_client.cpp", "net-snmp/net-snmp-config.h", True),
]


def panel_of(path):
    """print_mode_panel for panels/print_mode_panel.h, None for other files."""
    match = re.fullmatch(r"panels/(\w+_panel)\.(h|cpp)", path)
    return match and match[1]


def host_folder(path):
    """The folder of a file below host/; None for files in host/ itself and all others."""
    folder = posixpath.dirname(path)
    return folder[len("host/"):] if folder.startswith("host/") else None


def violation(file, header, widget_headers):
    """Why a file must not include a header, or None if it may. Both are paths below the source folder."""
    module, header_module = file.split("/")[0], header.split("/")[0]
    if header == "cups/ppd.h" and not re.match(r"ppd/|constraints/ppd_|host/printing/ppd_\w+\.cpp$", file):
        return "libcups's PPD interface is used by ppd/, constraints/ppd_*.cpp and the sources host/printing/ppd_*.cpp"
    if module == "constraints" and header.startswith("Q"):
        return "the constraint engine is plain C++"
    if module == "host" and header_module == "constraints" and host_folder(file) != "printing":
        return "constraints are asked of the PPD document"
    is_widget = header.startswith("QtWidgets") or (widget_headers / header.split("/")[-1]).exists()
    its_window_ends_text_editing = module == "device" and header == "QWidget"
    if is_widget and file.startswith(WITHOUT_WIDGETS) and not its_window_ends_text_editing:
        return "there are no widgets here"
    if header.startswith(".") or (ROOT / file).parent.joinpath(header).is_file():
        return "paths of includes start at the source folder"
    if header_module in OURS and header_module not in MODULES[module]:
        return f"{module}/ must not include {header_module}/"
    if header_module == "host" and not host_folder(header) and host_folder(file):
        return f"host/{host_folder(file)}/ must not include files of host/ itself"
    if host_folder(header) and host_folder(file) and host_folder(header) not in HOST_FOLDERS[host_folder(file)]:
        return f"host/{host_folder(file)}/ must not include host/{host_folder(header)}/"
    if panel_of(header) not in (None, panel_of(file)):
        return "only a panel's own source includes it"
    return None


def sources_of(module):
    """(path, lines) of all headers and sources in a folder."""
    for path in sorted((ROOT / module).rglob("*")):
        if path.suffix in MOST_LINES:
            yield path, path.read_text(encoding="utf-8").splitlines()


def includes_of(module):
    """(file, line, header) of all includes in the sources of a folder."""
    for path, lines in sources_of(module):
        for number, line in enumerate(lines, 1):
            if match := re.match(r'\s*#\s*include\s*[<"]([^>"]+)[>"]', line):
                yield path.relative_to(ROOT).as_posix(), number, match[1]


def linked_sources(link_command):
    """The source of every object file of a link command. CMake compiles FOLDER/SOURCE to
    FOLDER/CMakeFiles/TARGET.dir/SOURCE.o, with "__" for each ".."; files generated by moc are in TARGET_autogen."""
    for module, source in re.findall(r"(\S+)/CMakeFiles/[^/ ]+\.dir/(\S+)\.o\b", link_command):
        yield posixpath.normpath(f"{module}/{source.replace('__/', '../')}")


def main(widget_headers, ninja, build, bundle_code):
    faults = []
    widget_headers = pathlib.Path(widget_headers)
    for file, header, allowed in EXAMPLES:
        if (violation(file, header, widget_headers) is None) != allowed:
            faults.append(f"the rules are broken: {file} includes {header}")

    folders = {path.parent.relative_to(ROOT).as_posix() for path in (ROOT / "host").rglob("*.cpp")}
    faults += [f"{folder}/: no rule says what it may include"
               for folder in sorted(folders - {"host"}) if host_folder(folder + "/") not in HOST_FOLDERS]
    for module in MODULES:
        includes = list(includes_of(module))
        if not includes:
            faults.append(f"{module}/: no sources found")
        for file, line, header in includes:
            if reason := violation(file, header, widget_headers):
                faults.append(f"{file}:{line}: {header}: {reason}")

    for module in OURS:
        faults += [f"{path.relative_to(ROOT)}: has {len(lines)} lines; at most {MOST_LINES[path.suffix]} are allowed"
                   for path, lines in sources_of(module) if len(lines) > MOST_LINES[path.suffix]]

    command = [ninja, "-C", build, "-t", "commands", "-s", posixpath.relpath(bundle_code, build)]
    linked = subprocess.run(command, capture_output=True, text=True, check=True).stdout
    sources = list(linked_sources(linked))
    missing = IN_BUNDLE - {source.split("/")[0] for source in sources}
    faults += [f"{module}/: nothing of it is in the bundle" for module in sorted(missing)]
    for source in sources:
        if source.split("/")[0] not in IN_BUNDLE:
            faults.append(f"{source}: must not be in the bundle")
    for archive in re.findall(r"\S+\.a\b", linked):
        faults.append(f"{archive}: must not be in the bundle")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
