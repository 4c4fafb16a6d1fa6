#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""A proxy for a CUPS server that delays responses or never responds. Usage:
stalling_proxy.py LISTEN-SOCKET SERVER-SOCKET

Reads commands from its standard input, one per line, and confirms each with "ok":
    stall WHAT   requests of this kind receive no response from now on: an IPP operation as a hexadecimal number,
                 "ppd" for the download of a PPD, "all"; with a "+" appended also all later requests
    delay MS     delays each response by this time
    pass         passes all requests again; stalled connections are closed
Writes "stalled" when a request is stalled for the first time since the command. Exits at the end of its input.
"""
import os
import socket
import sys
import threading
import time

state = {"stall": None, "delay": 0.0, "told": False}
lock = threading.Lock()
released = threading.Event()


def kind_of(request):
    """The kind of a request, as in the stall command; None until enough data has arrived."""
    head, _, body = request.partition(b"\r\n\r\n")
    if head.startswith(b"GET") and b".ppd" in head.split(b"\r\n")[0]:
        return "ppd"
    if head.startswith(b"GET"):
        return "get"
    if b"Transfer-Encoding: chunked" in head:
        _, _, body = body.partition(b"\r\n")
    return f"{int.from_bytes(body[2:4], 'big'):04x}" if len(body) >= 4 else None


def say(line):
    sys.stdout.write(line + "\n")
    sys.stdout.flush()


def hold():
    with lock:
        if not state["told"]:
            state["told"] = True
            say("stalled")
    released.wait()


def is_stalled(kind):
    with lock:
        if state["stall"] == kind + "+":
            state["stall"] = "all"
        return state["stall"] in ("all", kind)


def answers(server, client):
    sent = 0.0
    try:
        while data := server.recv(65536):
            if state["delay"] and time.monotonic() - sent > 0.05:  # not the next part of the same response
                threading.Event().wait(state["delay"])
            client.sendall(data)
            sent = time.monotonic()
    except OSError:
        pass
    close(client)


def close(*sockets):
    for one in sockets:
        try:
            one.shutdown(socket.SHUT_RDWR)
        except OSError:
            pass


def serve(client, server_path):
    server = socket.socket(socket.AF_UNIX)
    try:
        if is_stalled("all"):
            hold()
            return
        server.connect(server_path)
        threading.Thread(target=answers, args=(server, client), daemon=True).start()
        request, passed, asked = b"", 0, False
        while data := client.recv(65536):
            # Received data that begins with a method is a new request, since clients wait for responses.
            if data.startswith((b"POST ", b"GET ")):
                request, passed, asked = b"", 0, False
            if asked:
                server.sendall(data)
                continue
            request += data
            kind = kind_of(request)
            asked = kind is not None
            if asked and is_stalled(kind):
                hold()
                return
            # The header is passed at once, since clients wait for permission to continue. An incomplete body would block the
            # server for other clients.
            head = request.find(b"\r\n\r\n")
            end = len(request) if asked or head < 0 else head + 4
            server.sendall(request[passed:end])
            passed = end
    except OSError:
        pass
    finally:
        close(client, server)
        client.close()


def main(listen_path, server_path):
    listener = socket.socket(socket.AF_UNIX)
    listener.bind(listen_path)
    os.chmod(listen_path, 0o666)
    listener.listen(128)

    def accept():
        while True:
            client, _ = listener.accept()
            threading.Thread(target=serve, args=(client, server_path), daemon=True).start()

    threading.Thread(target=accept, daemon=True).start()
    say("ready")
    for line in sys.stdin:
        verb, *words = line.split()
        with lock:
            if verb == "stall":
                released.clear()
                state.update(stall=words[0], told=False)
            elif verb == "delay":
                state["delay"] = int(words[0]) / 1000
            else:
                state.update(stall=None, delay=0.0)
                released.set()
        say("ok")


if __name__ == "__main__":
    main(*sys.argv[1:])
