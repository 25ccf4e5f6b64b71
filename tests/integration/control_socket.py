#!/usr/bin/env python3
"""A client written from docs/control-socket.md alone drives the program with each kind of ring.

usage: control_socket.py PROGRAM

Exits with 0, with 1 and a message at the first difference, or with 77 when the port is taken.
"""
import base64
import contextlib
import copy
import json
import os
import signal
import socket
import subprocess
import sys
import tempfile
import time

PORT = 5488
PATIENCE = 20  # seconds for what must happen


class Difference(Exception):
    """The program did something else than the document says."""


def wait_for(what, attempt):
    """The first value of attempt() that is not None."""
    deadline = time.monotonic() + PATIENCE
    while True:
        value = attempt()
        if value is not None:
            return value
        if time.monotonic() > deadline:
            raise Difference(f"{what}: not within {PATIENCE} s")
        time.sleep(0.02)


def same(what, got, wanted):
    if got != wanted:
        raise Difference(f"{what}:\n  got    {got}\n  wanted {wanted}")


def encoded(message):
    text = message if isinstance(message, str) else json.dumps(message)
    return base64.b64encode(text.encode()) + b"&"


class Client:
    def __init__(self):
        self.socket = socket.create_connection(("127.0.0.1", PORT), PATIENCE)
        self.socket.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)  # pieces travel as they are cut
        self.pending = b""
        self.greeting = self.message().decode()

    def close(self):
        self.socket.close()

    def message(self):
        """What comes before the next `&`."""
        while b"&" not in self.pending:
            try:
                received = self.socket.recv(65536)
            except socket.timeout:
                raise Difference(f"no whole message within {PATIENCE} s, only {self.pending!r}") from None
            if not received:
                raise Difference(f"closed by the program after {self.pending!r}")
            self.pending += received
        message, _, self.pending = self.pending.partition(b"&")
        return message

    def reply(self):
        return json.loads(base64.b64decode(self.message(), validate=True))

    def raw(self, *pieces):
        for piece in pieces:
            self.socket.sendall(piece)

    def send(self, number, **data):
        self.raw(encoded({"command": number, "Data": data}))

    def state(self):
        self.send(0)
        return self.reply()["Data"]

    def expect(self, what, wanted):
        """Commands take effect in their order, but a panel may need a moment to follow."""
        seen = [None]

        def attempt():
            seen[0] = self.state()
            return True if seen[0] == wanted else None

        try:
            wait_for(what, attempt)
        except Difference:
            same(what, seen[0], wanted)


def check_messages(client, number, key):
    """Framing, which is the same with each ring. Command `number` sets the brightness under `key`."""
    ask = encoded({"command": 0})
    client.send(number, **{key: 10})
    state = client.state()
    for piece in (ask[i:i + 1] for i in range(len(ask))):
        client.raw(piece)
    same("a message in single bytes", client.reply()["Data"], state)
    client.raw(ask[:5])
    other = Client()  # a half message of one client is nothing to another
    same("the state that another client reads", other.state(), state)
    other.close()
    client.raw(ask[5:] + ask + b" \r\n" + ask)
    for which in ("the end of a cut message", "the second at once", "the third, after white space"):
        same(which, client.reply()["Data"], state)
    client.raw(encoded("{}"))
    same("an object without a command", client.reply()["Data"], state)
    rubbish = {
        "a keep-alive": encoded("07"), "a longer keep-alive": encoded('07{"command":0}'),
        "no Base64": b"\xff\xfe\x00!&", "nothing at all": b"&&&", "no JSON": encoded("{command"),
        "a list": encoded("[0]"), "the same key twice": encoded('{"command":0,"command":0}'),
        "an unknown command": encoded({"command": 99})}
    for percent, (what, message) in enumerate(rubbish.items(), 20):
        # An answer to the rubbish would come first and still have the brightness before.
        client.raw(message, encoded({"command": number, "Data": {key: percent}}), ask)
        before, state = state, client.reply()["Data"]
        if state == before:
            raise Difference(f"{what} was answered, or the command behind it was not carried out")
    client.raw(*([encoded("07")] * 200), ask)
    same("after 200 keep-alives", client.reply()["Data"], state)

    # A browser's request: closed, and the command behind it is not carried out.
    browser = Client()
    with contextlib.suppress(OSError):
        browser.raw(b"POST / HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n&", encoded({"command": number, "Data": {key: 99}}))
    try:
        same("bytes for a browser", browser.socket.recv(1), b"")
    except ConnectionResetError:
        pass  # closed with its message unread
    browser.close()
    same("after a browser came", client.state(), state)


def put(state, **values):
    """Sets keys, or with a dictionary single entries of a list: {entry: value}."""
    for key, value in values.items():
        if isinstance(value, dict):
            for entry, number in value.items():
                state[key][entry] = number
        else:
            state[key] = value


def run_steps(client, state, steps):
    for number, data, changes in steps:
        client.send(number, **data)
        put(state, **changes)
        client.expect(f"after command {number} with {data}", state)


def check_single(client):
    same("the greeting", client.greeting, f"CvPower!{socket.gethostname()}")
    client.send(0)
    reply = client.reply()
    same("the reply's number", reply["command"], "1")
    state = reply["Data"]
    same("the reply's keys", sorted(state), ["Brightness", "Light", "LightMode", "bColor", "gColor", "rColor"])
    same("the light at the first start", state["Light"], "00")
    for light in ("01", "00"):  # off and on again; each click is answered
        client.send(1)
        same("the light after a click", client.reply()["Data"]["Light"], light)
    run_steps(client, state, [
        (2, {"LightMode": 4}, {"LightMode": "04"}),
        (2, {"LightMode": "2"}, {"LightMode": "02"}),
        (2, {"LightMode": 99}, {"LightMode": "04"}),
        (3, {"rColor": 255, "gColor": "100", "bColor": 1, "Brightness": 50},
         {"rColor": "255", "gColor": "100", "bColor": "01", "Brightness": "50"}),
        (3, {"rColor": 999, "bColor": -1}, {"bColor": "00"}),
        (3, {"Brightness": 81}, {"Brightness": "81"}),
        (4, {"rColor": 7, "gColor": 7, "bColor": 7}, {}),  # shown, not kept
        (2, {"LightMode": 1}, {"LightMode": "01"}),
    ])


def greeting_state(client, name):
    """The state that the greeting tells, which a reply has to repeat."""
    kind, host, state = client.greeting.split("!", 2)
    same("the greeting", [kind, host], [name, socket.gethostname()])
    client.send(0)
    same("the first reply", client.reply(), json.loads(state))
    same("the reply's number", json.loads(state)["command"], 0)
    return json.loads(state)["Data"]


def check_twelve(client):
    state = greeting_state(client, "CvPower_12LED")
    same("the lengths of the lists", [len(state[key]) for key in ("rColor", "gColor", "bColor", "Brightness")],
         [13] * 4)
    first = copy.deepcopy(state)
    frame = {"rColor": [9] * 12, "gColor": list(range(12)), "bColor": [255] * 12, "Brightness": 70}
    run_steps(client, state, [
        (2, {"LightOn": False}, {"LightOn": 0}),
        (2, {"LightOn": 1}, {"LightOn": 1}),
        (2, {"LightOn": 0}, {"LightOn": 0}),
        (2, {"LightOn": True}, {"LightOn": 1}),
        (1, {"LightMode": 6, "ColorMode": 1, "Speed": 3}, {"LightMode": 6, "ColorMode": 1, "Speed": 3}),
        (1, {"LightMode": "5", "ColorMode": 0}, {"LightMode": 5, "ColorMode": 0}),
        (1, {"LightMode": 99, "Speed": -1}, {"LightMode": 7, "Speed": 0}),
        (4, {"LED": 4, "rColor": 1, "gColor": 2, "bColor": 3},
         {"rColor": {4: 1}, "gColor": {4: 2}, "bColor": {4: 3}}),
        (4, {"LED": [0, 11, 12], "rColor": 90}, {"rColor": {0: 90, 11: 90, 12: 90}}),
        (4, {"rColor": 10, "gColor": 20, "bColor": 300},
         {"rColor": [10] * 13, "gColor": [20] * 13, "bColor": [255] * 13}),
        (5, {"LED": 7, "Brightness": 33}, {"Brightness": {7: 33}}),
        (5, {"Brightness": 61}, {"Brightness": [61] * 13}),
        (7, frame, {}), (8, frame, {}), (9, {}, {}), (6, frame, {}),
        (3, {}, first),
    ])


def check_duo(client):
    state = greeting_state(client, "CvPower_Duo")
    same("the lengths of the lists", {key: len(value) for key, value in state.items() if key != "LightOn"}, {
        **dict.fromkeys(("LightMode", "ColorMode", "SpeedMode", "SingleColor_R", "SingleColor_G", "SingleColor_B",
                         "SingleBrightValue"), 2),
        **dict.fromkeys(("m_Color_R", "m_Color_G", "m_Color_B", "m_BrightValue"), 24)})
    first = copy.deepcopy(state)
    frame = {"Color_R": [9] * 18, "Color_G": list(range(18)), "Color_B": [255] * 18, "Bright": 70}
    run_steps(client, state, [
        (2, {"LightOn": False}, {"LightOn": 0}),
        (2, {"LightOn": True}, {"LightOn": 1}),
        (1, {"LEDType": 0, "LightMode": 20, "ColorMode": 1, "SpeedMode": 3},
         {"LightMode": {0: 20}, "ColorMode": {0: 1}, "SpeedMode": {0: 3}}),
        (1, {"LEDType": 1, "LightMode": 4}, {"LightMode": {1: 4}}),
        (1, {"LightMode": 99, "SpeedMode": "1"}, {"LightMode": [20, 20], "SpeedMode": [1, 1]}),
        # Light i of the front ring has the entries 2 i and 2 i + 1, the middle ring's start at 12.
        (4, {"LEDType": 0, "LED": 2, "RGBType": 0, "Color_R": 1, "Color_G": 2, "Color_B": 3},
         {"m_Color_R": {4: 1, 5: 1}, "m_Color_G": {4: 2, 5: 2}, "m_Color_B": {4: 3, 5: 3}}),
        (4, {"LEDType": 1, "LED": [2, 11], "RGBType": 0, "Color_R": 90}, {"m_Color_R": {14: 90, 23: 90}}),
        (4, {"LEDType": 1, "RGBType": 1, "Color_R": 99, "Color_G": 88, "Color_B": 77},
         {"SingleColor_R": {1: 99}, "SingleColor_G": {1: 88}, "SingleColor_B": {1: 77}}),
        (4, {"RGBType": 0, "Color_G": 300}, {"m_Color_G": [255] * 24}),
        (5, {"LEDType": 0, "LED": 5, "RGBType": 0, "Bright": 33}, {"m_BrightValue": {10: 33, 11: 33}}),
        (5, {"LEDType": 0, "RGBType": 1, "Bright": 29}, {"SingleBrightValue": {0: 29}}),
        (5, {"RGBType": 0, "Bright": 57}, {"m_BrightValue": [57] * 24}),
        (6, frame, {}), (7, {}, {}),
        (3, {}, first),
    ])


def check_program(program, model, check, brightness):
    with tempfile.TemporaryDirectory() as folder:  # made with mode 700
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=folder, HOME=folder)
        running = subprocess.Popen([program, f"--demo={model}", "--data-dir", folder], env=environment)
        try:
            def connect():
                if running.poll() is not None:
                    raise Difference(f"the program ended by itself with {running.returncode}")
                with contextlib.suppress(ConnectionRefusedError):
                    client = Client()
                    if not client.greeting.startswith("NoPower!"):
                        return client
                    client.close()  # the supply takes a moment to be found
                return None

            client = wait_for(f"an answer at port {PORT} and a supply", connect)
            check(client)
            check_messages(client, *brightness)
            running.send_signal(signal.SIGTERM)
            same("the exit status after SIGTERM", running.wait(PATIENCE), 0)
            same("what comes at the end", client.socket.recv(1), b"")
            client.close()
        except subprocess.TimeoutExpired:
            raise Difference(f"the program did not end within {PATIENCE} s of SIGTERM") from None
        finally:
            if running.poll() is None:
                running.kill()
                running.wait()


def port_is_free():
    with socket.socket() as probe:
        probe.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)  # one that is just closing does not count
        try:
            probe.bind(("", PORT))
        except OSError:
            return False
    return True


def main(program):
    if not port_is_free():
        print(f"port {PORT} is taken")
        return 77
    for model, check, brightness in (("CVD-0650-F", check_single, (3, "Brightness")),
                                     ("CVG-0850-Z", check_twelve, (5, "Brightness")),
                                     ("CVX-1000-D", check_duo, (5, "Bright"))):
        try:
            check_program(program, model, check, brightness)
        except (Difference, ValueError, KeyError, TypeError, OSError) as fault:
            print(f"{model}: {type(fault).__name__}: {fault}")
            return 1
        print(f"{model}: as documented")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
