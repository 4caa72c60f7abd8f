"""The server of the page, asked without a browser: what it refuses, who may look, and how it ends."""

import http.client
import json
import signal
import unittest

from device_command import DeviceCommand, processes_with

json_type = {"Content-Type": "application/json"}
photos = "com.apple.mobileslideshow"


class Server(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.device = DeviceCommand()

    @classmethod
    def tearDownClass(cls):
        cls.device.__exit__()

    def answer(self, method, path, body=None, headers=None):
        connection = http.client.HTTPConnection("127.0.0.1", self.device.port, timeout=60)
        connection.request(method, path, body, headers or {})
        answer = connection.getresponse()
        text = answer.read().decode()
        connection.close()
        return answer, text

    def do(self, action, **details):
        return self.answer("POST", "/do", json.dumps({"do": action, **details}), json_type)[0].status

    def watch(self):
        connection = http.client.HTTPConnection("127.0.0.1", self.device.port, timeout=60)
        connection.request("GET", "/events")
        return connection.getresponse()

    @staticmethod
    def states(events):
        for line in events:
            if line.startswith(b"data: "):
                yield json.loads(line[len("data: ") :])

    def test_requests_that_are_refused(self):
        own = f"127.0.0.1:{self.device.port}"
        long = json.dumps({"do": "home", "more": "x" * 5000})
        cases = [
            (421, "GET", "/", None, {"Host": f"evil.example:{self.device.port}"}),
            (421, "GET", "/", None, {"Host": "127.0.0.1"}),
            (421, "POST", "/do", "{}", json_type | {"Host": f"{own}.evil.example"}),
            (403, "POST", "/do", '{"do":"home"}', json_type | {"Origin": "http://evil.example"}),
            (403, "POST", "/do", '{"do":"home"}', json_type | {"Origin": "null"}),
            (403, "GET", "/events", None, {"Origin": f"https://{own}"}),
            (403, "GET", "/screen.svg", None, {"Sec-Fetch-Site": "cross-site"}),
            (404, "GET", "/../../README.md", None, {}),
            (404, "GET", "/%2e%2e/phone.cpp", None, {}),
            (404, "GET", "/index.html", None, {}),
            (404, "GET", "/photo?id=../../etc/passwd", None, {}),
            (405, "POST", "/", "{}", json_type),
            (405, "GET", "/do", None, {}),
            (405, "PUT", "/page.js", "x", {}),
            (405, "OPTIONS", "/do", None, {"Origin": f"http://{own}"}),
            (413, "POST", "/do", long, json_type),
            (415, "POST", "/do", '{"do":"home"}', {"Content-Type": "text/plain"}),
            (400, "POST", "/do", "", json_type),
            (400, "POST", "/do", "[]", json_type),
            (400, "POST", "/do", '{"do": "home"', json_type),
            (400, "POST", "/do", '{"do": "reboot"}', json_type),
            (400, "POST", "/do", '{"do": "tap", "x": "1", "y": 1}', json_type),
            (400, "POST", "/do", '{"do": "open", "application": "com.apple.springboard"}', json_type),
            (400, "POST", "/do", '{"do": "set", "release": "13.0"}', json_type),
            (400, "POST", "/do", '{"do": "set", "size": ["small"]}', json_type),
        ]
        for status, method, path, body, headers in cases:
            with self.subTest(method=method, path=path, body=(body or "")[:60], headers=headers):
                answer, text = self.answer(method, path, body, headers)
                self.assertEqual(answer.status, status)
                self.assertTrue(text.endswith("\n") and len(text) > 5, "a sentence says why")
                if status == 405:
                    self.assertIn(answer.getheader("Allow"), ("GET", "POST"))

    def test_own_pages_are_answered_with_a_strict_policy(self):
        for host in ("127.0.0.1", "localhost"):
            headers = {"Host": f"{host}:{self.device.port}", "Origin": f"http://{host}:{self.device.port}"}
            answer, text = self.answer("GET", "/", None, headers)
            self.assertEqual(answer.status, 200)
            self.assertIn("default-src 'none'", answer.getheader("Content-Security-Policy"))
            self.assertNotIn("unsafe", answer.getheader("Content-Security-Policy"))
            self.assertNotRegex(text, r"<script>|<style|\son\w+=|\sstyle=")

    def test_two_who_look_see_the_same(self):
        with self.watch() as one, self.watch() as other:
            self.assertEqual(self.do("open", application=photos), 204)
            seen = [next(state for state in self.states(events) if not state["isHome"]) for events in (one, other)]
        self.assertEqual([state["application"] for state in seen], ["Photos", "Photos"])
        self.assertEqual(self.do("tap", x=1e9, y=1), 400)
        self.assertEqual(self.do("home"), 204)

    def test_an_application_that_dies_brings_the_home_screen(self):
        self.do("home")
        self.do("open", application=photos)
        with self.watch() as events:
            self.device.kill_host(photos)
            state = next(state for state in self.states(events) if state["isHome"])
        self.assertEqual(state["notice"]["text"], "Photos has ended unexpectedly")
        self.assertEqual(self.do("open", application=photos), 204, "it starts again")


class End(unittest.TestCase):
    def test_its_processes_end_and_its_folder_goes(self):
        for by in (signal.SIGINT, signal.SIGTERM):
            with self.subTest(by=by.name), DeviceCommand("--native") as device:
                folder = device.folder()
                self.assertTrue(processes_with(str(folder)) and folder.is_dir())
                self.assertEqual(device.end(by), 0)
                self.assertFalse(folder.exists())
                self.assertEqual(processes_with(str(folder)), {})

    def test_a_port_that_is_taken_is_an_error(self):
        with DeviceCommand("--native") as device, self.assertRaisesRegex(RuntimeError, "status 1"):
            DeviceCommand("--native", "--port", str(device.port)).end()


if __name__ == "__main__":
    unittest.main()
