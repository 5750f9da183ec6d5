"""The sheets that the program prints are those that an independent reading comes to."""

import desktop
from accessible import application_of
from desktop import wait_until
from independent_sheet import entries, read_menu_bar
from quillon import QuillonTestCase, Ran, display, sheet


def menus_of(pid):
    application = application_of(pid)
    return read_menu_bar(application) if application else []


class SheetTest(QuillonTestCase):
    def assert_same_sheet(self, program, toolkit, bundle_id, name, at_least):
        self.assert_same_sheet_of(program.pid, toolkit, bundle_id, name, at_least)

    def assert_same_sheet_of(self, pid, toolkit, bundle_id, name, at_least):
        expected = entries(menus_of(pid), toolkit)
        self.assertGreaterEqual(len(expected), at_least)
        self.assertTrue(any(not entry["enabled"] for entry in expected), "no disabled command to compare")
        for choice in (("--pid", pid), ("--app", name), ("--front",)):
            with self.subTest(choice=choice):
                printed = sheet(*choice)
                self.assertEqual(printed["entries"], expected)
                self.assertEqual((printed["bundleID"], printed["appName"]), (bundle_id, name))
                self.assertRegex(printed["readAt"], r"^20\d\d-\d\d-\d\dT\d\d:\d\d:\d\dZ$")

    def test_geany(self):
        program = self.start_application("geany", "--new-instance", "--no-session")
        self.assert_same_sheet(program, "gtk", "geany", "Geany", at_least=50)

    def test_mousepad(self):
        program = self.start_application("mousepad")
        self.assert_same_sheet(program, "gtk", "org.xfce.mousepad", "Mousepad", at_least=30)

    def test_featherpad(self):
        program = self.start_application("featherpad")
        self.assert_same_sheet(program, "qt", "featherpad", "FeatherPad", at_least=30)

    def test_designer(self):
        program = self.start_application("/usr/lib/qt6/bin/designer")
        desktop.press("Escape")  # the dialog for a new form
        # It has no desktop entry. Where its window says nevertheless which application it is, as newer toolkits do, its
        # name is the window's class, and the program's otherwise.
        says = desktop.window_property(desktop.active_window(), "_GTK_APPLICATION_ID")
        self.assert_same_sheet(program, "qt", "designer", "Designer" if says else "designer", at_least=25)

    def test_libreoffice_writer(self):
        """Its window has two menu bars, and the nearer one is the false one. The program that is started is not the
        one whose window it becomes."""
        program = self.start("soffice", "--writer", "--norestore", "--nologo", "--nofirststartwizard",
                             environment={"SAL_USE_VCLPLUGIN": "gtk3"})
        wait_until("its window", lambda: "LibreOffice Writer" in desktop.active_title(), within=60)
        pid = int(desktop.xdotool("getactivewindow", "getwindowpid"))
        self.assertNotEqual(pid, program.pid)
        wait_until("its menus", lambda: menus_of(pid) and menus_of(pid) == menus_of(pid), within=60)
        self.assert_same_sheet_of(pid, "gtk", "libreoffice-writer", "LibreOffice Writer", at_least=80)
        self.assertEqual(sheet("--app", "soffice.bin")["bundleID"], "libreoffice-writer", "by its program's name")


class CommandLineTest(QuillonTestCase):
    def setUp(self):
        super().setUp()
        self.geany = self.start_application("geany", "--new-instance", "--no-session")

    def test_json_is_one_line_with_sorted_keys(self):
        ran = Ran("sheet", "--app", "geany", "--format", "json")
        self.assertEqual(ran.status, 0, ran)
        self.assertEqual(ran.output.count("\n"), 1)
        self.assertRegex(ran.output, r'^{"appName":"Geany","bundleID":"geany","entries":\[{"enabled":(true|false),"path":\[')

    def test_text_is_a_table_of_every_command_by_menu(self):
        ran = Ran("sheet", "--app", "geany")
        self.assertEqual(ran.status, 0, ran)
        lines = ran.output.splitlines()
        for entry in sheet("--app", "geany")["entries"]:
            title, keys = " › ".join(entry["path"][1:]), display(entry["shortcut"])
            self.assertTrue(any(line.split(title)[-1].split()[:1] == [keys] for line in lines
                                if line.startswith(f"  {title}")), (title, keys))
            self.assertIn(entry["path"][0], lines)

    def test_a_query_leaves_what_matches(self):
        found = sheet("--app", "geany", "--query", "ctrl n")["entries"]
        self.assertEqual([entry["path"] for entry in found], [["File", "New"]])
        for entry in sheet("--app", "geany", "--query", "fInD neXt")["entries"]:
            self.assertIn("find next", " ".join(entry["path"]).lower())

    def test_apps_lists_process_identifier_name_and_toolkit(self):
        mousepad = self.start_application("mousepad")
        ran = Ran("apps")
        self.assertEqual(ran.status, 0, ran)
        rows = {line.split()[0]: line.split()[1:] for line in ran.output.splitlines()}
        self.assertEqual(rows[str(self.geany.pid)][:3], ["geany", "Geany", "gtk"])
        self.assertEqual(rows[str(mousepad.pid)][:3], ["org.xfce.mousepad", "Mousepad", "gtk"])

    def test_the_running_program_is_no_application_of_the_list(self):
        self.start_quillon()
        self.assertNotIn("quillon", Ran("apps").output.lower())

    def test_an_unknown_application_is_status_3(self):
        for choice in (("--app", "no-such-application"), ("--pid", "1")):
            ran = Ran("sheet", *choice)
            self.assertEqual((ran.status, ran.output), (3, ""), ran)
            self.assertEqual(ran.errors.count("\n"), 1)

    def test_wrong_usage_is_status_2(self):
        for arguments in (["sheet", "--format", "xml"], ["sheet", "--app"], ["fly"], ["sheet", "--pid", "x"]):
            ran = Ran(*arguments)
            self.assertEqual((ran.status, ran.output), (2, ""), ran)
            self.assertIn("quillon", ran.errors)


if __name__ == "__main__":
    desktop.main()
