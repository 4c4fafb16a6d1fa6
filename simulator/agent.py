#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Answers snmpd for a simulated printer: agent.py DEVICEFILE, run by snmpd's pass_persist.

snmpd writes "PING", or "get" or "getnext" followed by a line with an OID. The answer is "PONG", three lines with OID, type
and value, or "NONE".
"""
import bisect
import configparser
import re
import sys

PROFILES = (1, 3, 6, 1, 4, 1, 5309, 2, 3, 50, 1, 3, 30, 1, 1)
COLUMNS = {"rgb-source": 2, "cmyk-source": 3, "cmyk-destination": 4}
DEFAULTS = ("rgb-source", "cmyk-source", "cmyk-destination", "rendering-intent")
CURRENT_LOCALIZATION = (1, 3, 6, 1, 2, 1, 43, 5, 1, 1, 2, 1)
CHARACTER_SET = (1, 3, 6, 1, 2, 1, 43, 7, 1, 1, 4, 1)


def parse_oid(text):
    return tuple(int(part) for part in text.strip().strip(".").split("."))


def text_value(text):
    """Type and value of a text: unchanged if it is plain ASCII, else as hexadecimal bytes."""
    octets = re.sub(
        rb"\\(x[0-9A-Fa-f]{2}|\\)",
        lambda m: b"\\" if m[1] == b"\\" else bytes([int(m[1][1:], 16)]),
        text.encode("utf-8"),
    )
    if all(0x20 <= octet < 0x7F for octet in octets):
        return "string", octets.decode("ascii")
    return "octet", octets.hex(" ").upper()


def read_device(path):
    """Reads a device file: maps OIDs to type and value."""
    device = configparser.ConfigParser(interpolation=None, delimiters=("=",), comment_prefixes=("#",))
    with open(path, encoding="utf-8") as file:
        device.read_file(file)
    objects = {}
    for section, column in COLUMNS.items():
        if device.has_section(section):
            for row, name in device.items(section):
                objects[PROFILES + (column, 1, int(row))] = text_value(name)
    for row, key in enumerate(DEFAULTS, 1):
        if device.has_option("defaults", key):
            objects[PROFILES + (5, 1, row)] = ("integer", str(device.getint("defaults", key)))
    if device.has_section("printer-mib"):
        for key, number in device.items("printer-mib"):
            if key == "current-localization":
                objects[CURRENT_LOCALIZATION] = ("integer", str(int(number)))
            else:
                index = int(key.removeprefix("character-set-"))
                objects[CHARACTER_SET + (index,)] = ("integer", str(int(number)))
    if device.has_section("objects"):
        for oid, value in device.items("objects"):
            kind, _, rest = value.partition(" ")
            objects[parse_oid(oid)] = text_value(rest) if kind == "string" else (kind, rest)
    return objects


def answer(objects, order, command, oid):
    if command == "getnext":
        position = bisect.bisect_right(order, oid)
        oid = order[position] if position < len(order) else None
    if oid not in objects:
        return "NONE"
    return "\n".join(("." + ".".join(map(str, oid)),) + objects[oid])


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: agent.py DEVICEFILE")
    try:
        objects = read_device(sys.argv[1])
    except (OSError, ValueError, configparser.Error) as error:
        sys.exit(f"{sys.argv[1]}: {error}")
    order = sorted(objects)
    lines = iter(sys.stdin.readline, "")
    for command in map(str.strip, lines):
        if command == "PING":
            reply = "PONG"
        elif command in ("get", "getnext"):
            reply = answer(objects, order, command, parse_oid(next(lines)))
        elif command == "set":
            next(lines), next(lines)
            reply = "not-writable"
        else:
            break
        print(reply, flush=True)


if __name__ == "__main__":
    main()
