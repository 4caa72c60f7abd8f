"""The page in a real browser, driven as a person would; and the story that script/run writes."""

import json
import re
import unittest

from selenium import webdriver
from selenium.common.exceptions import StaleElementReferenceException
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import WebDriverWait

from device_command import DeviceCommand, project

patience = 30  # seconds, under emulation
most_scrolls = 12


def make_browser():
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for argument in ("--headless=new", "--no-sandbox", "--disable-dev-shm-usage", "--window-size=1360,1000"):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    service = webdriver.chrome.service.Service("/usr/bin/chromedriver")
    return webdriver.Chrome(service=service, options=options)


class Browser(unittest.TestCase):
    def setUp(self):
        self.browser = make_browser()
        self.addCleanup(self.browser.quit)

    def said_by_the_console(self):
        return [entry["message"] for entry in self.browser.get_log("browser")]

    def requested(self):
        """The addresses of all that was asked for."""
        messages = [json.loads(entry["message"])["message"] for entry in self.browser.get_log("performance")]
        return [
            message["params"]["request"]["url"]
            for message in messages
            if message["method"] == "Network.requestWillBeSent"
        ]

    def wait(self, what, condition):
        return WebDriverWait(self.browser, patience, 0.1).until(lambda _: condition(), what)


class Page(Browser):
    """Each case on a device of its own."""

    def setUp(self):
        super().setUp()
        self.device = self.enterContext(DeviceCommand())
        self.browser.get(self.device.address)

    def tearDown(self):
        self.assertEqual(self.said_by_the_console(), [])
        own = (self.device.address, "data:")
        self.assertEqual([url for url in self.requested() if not url.startswith(own)], [])

    def evaluate(self, script, *arguments):
        return self.browser.execute_script(f"return {script}", *arguments)

    def touchable(self):
        """All that can be touched on the screen, by name; what comes later lies on top."""
        found = self.evaluate(
            "[...document.querySelectorAll('.spot:not(.bar)')]"
            ".map(each => [each.ariaLabel, each])"
        )
        return dict(found)

    def labels(self):
        return list(self.touchable())

    def spot(self, label):
        """What can be touched under that name, alone or before a comma; None without one."""
        return next((spot for name, spot in self.touchable().items() if f"{name}, ".startswith(f"{label}, ")), None)

    def act_on(self, label, action):
        """A spot that is drawn anew between the look and the act is looked for again."""

        def attempt():
            spot = self.spot(label)
            try:
                return spot is not None and (action(spot), True)
            except StaleElementReferenceException:
                return False

        self.wait(f"{label} on the screen", attempt)

    def touch(self, label):
        self.act_on(label, lambda spot: spot.click())

    def choose(self, label):
        """The same with the keyboard, where a click that a busy machine draws out would be a long press."""
        self.act_on(label, lambda spot: spot.send_keys(Keys.ENTER))

    def scroll_to(self, label):
        for _ in range(most_scrolls):
            if self.spot(label):
                return
            before = self.labels()
            self.browser.execute_script("document.querySelector('.spot').focus()")
            self.browser.switch_to.active_element.send_keys(Keys.PAGE_DOWN)
            self.wait("the screen to scroll", lambda: self.labels() != before)
        self.fail(f"{label} is not on the screen: {self.labels()}")

    def go_home(self):
        self.browser.find_element(By.ID, "homeButton").click()

    def finger(self, name):
        self.browser.find_element(By.CSS_SELECTOR, f"#finger [value={name}]").click()

    def photos_in(self, title):
        return len(self.browser.find_elements(By.CSS_SELECTOR, f".album[data-title='{title}'] .photo"))

    def file(self, name):
        return self.evaluate(
            "[...document.querySelectorAll('.file')].find(each => each.dataset.path.endsWith(arguments[0]))"
            "?.querySelector('pre').textContent ?? ''",
            name,
        )

    def calls(self, method):
        """How often the hook ran, as the page tells."""
        for line in self.evaluate("[...document.querySelectorAll('#hooks li')].map(each => each.textContent)"):
            if f" {method}]" in line:
                return int(re.search(r"(\d+)×", line)[1])
        return 0

    def test_an_album_is_locked_by_its_button_and_opens_for_the_right_finger_only(self):
        self.touch("Photos")
        self.touch("Edit")
        self.wait("Done", lambda: self.spot("Done"))
        self.scroll_to("greenlock, Holidays")
        self.touch("greenlock, Holidays")
        self.wait("the list of locked albums", lambda: "Holidays" in self.file("lockedAlbums.plist"))
        self.touch("Done")
        self.wait("the end of editing", lambda: self.spot("Edit"))
        self.finger("wrong")
        self.choose("Holidays")
        self.wait("the question for a password instead", lambda: self.spot("Password"))
        self.assertEqual((self.calls("unlockAlbum:withAlbum:"), self.calls("unlockAuthorised:")), (1, 0))
        self.touch("Cancel")
        self.wait("the album list, the album closed", lambda: self.spot("Edit"))
        self.finger("right")
        self.choose("Holidays")
        self.wait("the album's photos", lambda: self.spot("Back to Albums"))

    def test_a_photo_is_taken_into_an_album(self):
        self.touch("Camera")
        self.touch("album")
        self.touch("- Create new album -")
        self.wait("a field for its name", lambda: self.browser.find_elements(By.CSS_SELECTOR, "input.spot"))
        self.browser.find_element(By.CSS_SELECTOR, "input.spot").send_keys("Garden")
        self.touch("OK")
        self.touch("Take Picture")
        self.wait("the photo in the album", lambda: self.photos_in("Garden") == 1)
        self.wait("the photo to leave the Camera Roll", lambda: self.photos_in("Camera Roll") == 10)
        self.assertEqual(len(self.browser.find_elements(By.CSS_SELECTOR, "[data-title=Garden] .hidden")), 1)

    def test_photos_follows_a_switch_in_the_settings(self):
        self.touch("Photos")
        self.wait("the album list", lambda: self.spot("Videos"))
        self.go_home()
        for label in ("Settings", "Rollkeeper", "Stock Albums"):
            self.touch(label)
        self.wait("the switch", lambda: self.spot("Videos"))
        switch = self.evaluate("document.querySelector('.switch[aria-label=Videos]')")
        self.assertEqual(switch.get_attribute("aria-checked"), "true")
        switch.click()
        self.wait("the preferences", lambda: '"showVideos": false' in self.file("com.nrv.rollkeeperprefs.plist"))
        self.go_home()
        self.touch("Photos")
        self.wait("the album list", lambda: self.spot("Favorites"))
        self.touch("Shared")
        self.touch("Albums")
        self.wait("Videos to go", lambda: self.spot("Favorites") and not self.spot("Videos"))

    def test_the_keyboard_alone_is_enough_and_another_browser_sees_the_same(self):
        other = make_browser()
        self.addCleanup(other.quit)
        other.get(self.device.address)
        self.wait("the home screen", lambda: self.spot("Photos"))
        self.browser.execute_script("document.querySelector('[aria-label=Photos]').focus()")
        for key in (Keys.ARROW_RIGHT, Keys.ARROW_LEFT, Keys.ENTER):
            self.browser.switch_to.active_element.send_keys(key)
        for browser in (self.browser, other):
            WebDriverWait(browser, patience).until(
                lambda each: each.find_elements(By.CSS_SELECTOR, ".spot[aria-label=Edit]")
            )
        self.browser.execute_script("document.querySelector('.spot').focus()")
        self.browser.switch_to.active_element.send_keys(Keys.ESCAPE)
        self.wait("the home screen", lambda: self.spot("Camera"))

    def test_another_release_and_no_library_start_the_phone_again_with_the_same_photos(self):
        self.browser.find_element(By.ID, "takePhoto").click()
        self.wait("the photo", lambda: self.photos_in("Camera Roll") == 11)
        self.browser.find_element(By.CSS_SELECTOR, "#release [value='9.3']").click()
        self.browser.find_element(By.ID, "library").click()
        self.wait("no hooks", lambda: not self.browser.find_elements(By.CSS_SELECTOR, "#hooks li"))
        self.touch("Photos")
        self.touch("Edit")
        self.wait("Done", lambda: self.spot("Done"))
        self.assertEqual([label for label in self.labels() if "lock" in label], [])
        self.assertEqual(self.photos_in("Camera Roll"), 11)


class Story(Browser):
    def test_it_tells_each_scenario_without_the_network(self):
        file = project / "build/story/index.html"
        scenarios = len(re.findall(r"^\s+\{\"", (project / "simulator/tour/scenarios.h").read_text(), re.MULTILINE))
        self.assertGreater(scenarios, 0)
        self.assertLess(file.stat().st_size, 5_000_000)
        self.browser.get(file.as_uri())
        self.assertEqual(len(self.browser.find_elements(By.TAG_NAME, "section")), scenarios)
        pictures = self.browser.execute_script("return [...document.images].map(each => each.naturalWidth)")
        self.assertTrue(all(width > 0 for width in pictures), "each picture can be drawn")
        self.assertEqual(self.said_by_the_console(), [])
        self.assertEqual([url for url in self.requested() if not url.startswith(("file:", "data:"))], [])


if __name__ == "__main__":
    unittest.main()
