"""What the checkup says of the watchers: what the desktop lets them notice, and what the running program does."""

import desktop
from desktop import wait_until
from quillon import QuillonTestCase, doctor, write_settings

WATCHERS = {"Hold watcher": "held keys", "Click watcher": "clicks on menu commands", "Typed watcher": "typed shortcuts"}


def watchers():
    found = doctor()
    return {name: found[name] for name in WATCHERS}


class WatchersTest(QuillonTestCase):
    def test_what_could_be_noticed_while_the_program_does_not_run(self):
        self.assertEqual(watchers(), {name: f"ok can notice {what}" for name, what in WATCHERS.items()})

    def test_what_the_running_program_notices(self):
        self.start_quillon()
        wait_until("all watchers to be on", lambda: watchers() == {
            name: f"ok notices {what}" for name, what in WATCHERS.items()})

    def test_what_the_settings_switched_off(self):
        write_settings(onboarded="true", nudgesOn="false", countTyped="false")
        self.start_quillon()
        self.wait_watching()
        self.assertEqual(watchers(), {
            "Hold watcher": "ok notices held keys",
            "Click watcher": "limited does not notice clicks on menu commands now",
            "Typed watcher": "limited does not notice typed shortcuts now"})


if __name__ == "__main__":
    desktop.main()
