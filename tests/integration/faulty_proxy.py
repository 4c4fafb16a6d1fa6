#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""A proxy for a print server that makes selected requests fail: faulty_proxy.py LISTEN SERVER FAULT [NUMBER]

LISTEN and SERVER are socket paths. LISTEN may also be a TCP port, or PORT:CERTIFICATE:KEY for one that requires TLS.
The fault affects request NUMBER (counted from 1) of its operation and all later ones:
  OPERATION-lost OPERATION-garbage OPERATION-truncated
                                               the request arrives; its response is lost, garbage, or truncated
  OPERATION-dropped OPERATION-gone             the request is discarded; the response reports that the job does not exist
                 OPERATION is ask (Get-Printer-Attributes), create (Create-Job), send (Send-Document) or look
                 (Get-Job-Attributes)
  create-nonsense create-odd                   the response to Create-Job has an undefined status, in IPP or HTTP
  create-negative create-endless               the response to Create-Job contains job -5, or is endless
  send-forgotten                               Send-Document is answered; afterwards all jobs are unknown
  send-foreign                                 the response to Send-Document is lost; all jobs have the token of another program
  send-replaced                                the same, but only if a job is requested by its number
  send-vanished                                Send-Document arrives; then the server is gone
  send-stalled                                 the rest of the document is not read
  send-cut                                     the connection breaks in the middle of the document
  login                                        everything below /printers/ needs the user "anna", password "secret";
                                               each request without them is reported on the standard output
  none                                         no fault
"""
import base64
import http.client
import http.server
import os
import socket
import socketserver
import ssl
import struct
import sys
import threading
import time

listen, server, fault = sys.argv[1:4]
first = int(sys.argv[4]) if len(sys.argv) > 4 else 1
operations = {"create": 5, "send": 6, "look": 9, "ask": 11}
seen = {}
lock = threading.Lock()


def attribute(tag, name, value):
    return struct.pack(">BH", tag, len(name)) + name + struct.pack(">H", len(value)) + value


class Upstream(http.client.HTTPConnection):
    def connect(self):
        self.sock = socket.socket(socket.AF_UNIX)
        self.sock.connect(server)


class Broken(Exception):
    pass


class Relay(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def log_message(self, *_):
        pass

    def address_string(self):
        return "here"

    def read_body(self):
        if self.headers.get("Transfer-Encoding", "").lower() != "chunked":
            return self.rfile.read(int(self.headers.get("Content-Length", 0)))
        body = b""
        while True:
            line = self.rfile.readline()
            size = int(line, 16) if line.strip() else -1
            if size < 0:
                raise Broken
            body += self.rfile.read(size)
            self.rfile.readline()
            if size == 0:
                return body
            if fault in ("send-cut", "send-stalled") and body[2:4] == b"\0\6" and len(body) > 20000:
                if fault == "send-stalled":
                    time.sleep(60)
                raise Broken

    def strikes(self, kind):
        with lock:
            seen[kind] = seen.get(kind, 0) + 1
            return fault.startswith(kind) and seen[kind] >= first

    def is_admitted(self):
        if fault != "login" or not self.path.startswith("/printers/"):
            return True
        return self.headers.get("Authorization") == "Basic " + base64.b64encode(b"anna:secret").decode()

    def relay(self):
        if not self.is_admitted():
            self.close_connection = True
            print("login wanted", flush=True)
            self.send_response(401)
            self.send_header("WWW-Authenticate", 'Basic realm="CUPS"')
            self.send_header("Content-Length", "0")
            self.end_headers()
            return
        body = self.read_body()
        operation = struct.unpack(">H", body[2:4])[0] if len(body) > 8 else 0
        if fault == "send-forgotten" and seen.get("send") and operation in (9, 10):
            self.answer_status(body, 0x406 if operation == 9 else 0)
            return
        kind = next((k for k, o in operations.items() if o == operation), "")
        hit = kind and self.strikes(kind)
        if hit and fault.endswith("-gone"):
            self.answer_status(body, 0x407)
            return
        if hit and fault.endswith("-dropped"):
            raise Broken
        upstream = Upstream("localhost")
        headers = {k: v for k, v in self.headers.items()
                   if k.lower() not in ("host", "transfer-encoding", "expect", "content-length", "authorization")}
        upstream.request(self.command, self.path, body or None, headers)
        answer = upstream.getresponse()
        content = answer.read()
        upstream.close()
        if hit and fault == "send-vanished":
            os._exit(0)
        if hit and (fault.endswith("-lost") or fault in ("send-foreign", "send-replaced")):
            raise Broken
        if fault == "send-foreign" or (fault == "send-replaced" and operation == operations["look"]):
            content = content.replace(b"kelmar-submission\0\x2durn:uuid:", b"kelmar-submission\0\x2durn:uuiD:")
        if hit and fault.endswith("-garbage"):
            content = os.urandom(200)
        if hit and fault == "create-nonsense":
            content = content[:2] + b"\xff\xff" + content[4:]
        if hit and fault == "create-negative":
            at = content.index(b"job-id") + 8
            content = content[:at] + struct.pack(">i", -5) + content[at + 4:]
        if hit and fault == "create-endless":
            self.answer(answer.status, content[:-1], 1 << 40)
            while True:
                self.wfile.write(attribute(0x41, b"more", b"x" * 1000) * 60)
        status = 401100 if hit and fault == "create-odd" else answer.status
        self.answer(status, b"", len(content), answer.headers.get("Content-Type", "application/ipp"))
        if hit and fault.endswith("-truncated"):
            self.wfile.write(content[:len(content) // 2])
            raise Broken
        self.wfile.write(content)
        self.close_connection |= bool(hit and fault == "send-forgotten")

    def answer(self, status, content, length=None, kind="application/ipp"):
        self.send_response(status)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(content) if length is None else length))
        self.end_headers()
        self.wfile.write(content)

    def answer_status(self, request, status):
        self.answer(200, request[:2] + struct.pack(">H", status) + request[4:8] + b"\1" +
                    attribute(0x47, b"attributes-charset", b"utf-8") +
                    attribute(0x48, b"attributes-natural-language", b"en") + b"\3")

    def do_POST(self):
        try:
            self.relay()
        except (Broken, OSError, ValueError):
            self.close_connection = True

    do_GET = do_POST


class Server(socketserver.ThreadingMixIn, socketserver.UnixStreamServer):
    daemon_threads = True


class NetworkServer(socketserver.ThreadingMixIn, socketserver.TCPServer):
    daemon_threads = True
    allow_reuse_address = True


def listening():
    if listen.startswith("/"):
        return Server(listen, Relay)
    port, *files = listen.split(":")
    made = NetworkServer(("", int(port)), Relay)
    if files:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(*files)
        made.socket = context.wrap_socket(made.socket, server_side=True)
    return made


with listening() as proxy:
    print("ready", flush=True)
    proxy.serve_forever()
