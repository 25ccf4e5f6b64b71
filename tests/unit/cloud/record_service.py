#!/usr/bin/env python3
"""A record service for tests, on a free loopback port, which it prints as its first line.

usage: record_service.py FOLDER [CERTIFICATE KEY]

The path of a request says how it is answered; /take writes the fields it got and what is in the archive to
FOLDER/fields.json, and the archive to FOLDER/got.zip. With a certificate it speaks HTTPS.
"""
import binascii
import email
import http.server
import io
import json
import ssl
import sys
import threading
import zipfile

folder = sys.argv[1]
over = threading.Event()


class Service(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def log_message(self, *_):
        pass

    def answer(self, status, location=None, length=0):
        self.send_response(status)
        if location:
            self.send_header("Location", location)
        self.send_header("Content-Length", str(length))
        self.end_headers()

    def do_POST(self):
        name = self.path.strip("/")
        length = int(self.headers["Content-Length"])
        if name == "drop":
            self.rfile.read(10)
            self.close_connection = True
            return
        body = self.rfile.read(length)
        if name == "take":
            self.take(body)
            self.answer(200)
        elif name == "cut":
            self.answer(200, length=1000)
            self.close_connection = True
        elif name == "long":
            self.answer(200, length=50 * 65536)
            for _ in range(50):
                self.wfile.write(bytes(65536))
        elif name == "garbage":
            self.wfile.write(b"this is no HTTP\r\n\r\n")
            self.close_connection = True
        elif name == "silent":
            over.wait()
        elif name == "elsewhere":
            self.answer(307, "http://localhost:%d/take" % self.server.server_address[1])
        elif name == "loop":
            self.answer(307, "/loop")
        elif name.startswith("to/"):
            self.answer(int(name[3:]), "/take")
        else:
            self.answer(int(name))

    def take(self, body):
        head = b"Content-Type: " + self.headers["Content-Type"].encode() + b"\r\n\r\n"
        fields = {}
        for part in email.message_from_bytes(head + body).get_payload():
            name = part.get_param("name", header="content-disposition")
            content = part.get_payload(decode=True)
            if name == "zps_record":
                with open(folder + "/got.zip", "wb") as file:
                    file.write(content)
                fields["file name"] = part.get_filename()
                fields["file type"] = part.get_content_type()
                with zipfile.ZipFile(io.BytesIO(content)) as archive:
                    for entry in archive.namelist():
                        fields["crc of " + entry] = "%08x" % binascii.crc32(archive.read(entry))
            else:
                fields[name] = content.decode()
        with open(folder + "/fields.json", "w", encoding="utf-8") as file:
            json.dump(fields, file)


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, *_):
        pass  # a client that goes away is part of the test


server = Server(("127.0.0.1", 0), Service)
if len(sys.argv) > 2:
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(sys.argv[2], sys.argv[3])
    server.socket = context.wrap_socket(server.socket, server_side=True)
print(server.server_address[1], flush=True)
# Ends with the test, however that ends.
threading.Thread(target=lambda: (sys.stdin.read(), server.shutdown()), daemon=True).start()
server.serve_forever(poll_interval=0.05)
over.set()
