"""What the program reaches for besides the disk: no network, no other program, no code but its own and
the system's."""

import os
import re
import subprocess

import slow
from calls import Trace
from desktop import dies_with_us
from driver import FIXED, PATIENCE, wait_for
from journey import Journey, main

RIGHTS = "setuid,setgid,setreuid,setregid,setresuid,setresgid,setgroups,capset"
CALLS = f"execve,execveat,socket,openat,mmap,{RIGHTS}"
CODE = re.compile(r"\.so\b|\.qml$|\.qmlc$|\.jsc?$|\.mjs$|/qmldir$|\.qm$|\.conf$")
SYSTEM = ("/usr/", "/lib/", "/lib64/", "/etc/")
# Where the environment would have Qt look for plugins, for QML and for a style of its controls.
FOLDERS_OF_CODE = ("QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "QML_IMPORT_PATH", "QML2_IMPORT_PATH",
                   "QT_QUICK_CONTROLS_STYLE", "QT_QUICK_CONTROLS_STYLE_PATH", "QT_QUICK_CONTROLS_CONF")


class Reach(Journey):
    def setUp(self):
        super().setUp()
        if not slow.is_possible():
            self.skipTest("the program cannot be traced here")
        self.trace = Trace(self.world, CALLS)
        self.home.file("Library/Caches/com.example.Editor/index", 3_000_000)

    def use(self, **environment):
        """Starts the program, scans, deletes, and ends it."""
        program = self.start(wrapper=self.trace.wrapper, **environment)
        self.scan(program)
        self.delete(program, "com.example.Editor")
        program.press("push button", "Done")
        program.wait_until_gone("label", "Cleanup Complete!")
        self.assertEqual((program.close(), program.errors()), (0, ""))
        self.read_trace()

    def read_trace(self):
        self.calls = self.trace.calls()
        # Before it becomes the program, the process is the one that lets it end with the journey.
        own = next(n for n, call in enumerate(self.calls) if call.startswith(f'execve("{self.program_path}"'))
        self.calls = self.calls[own:]

    def arguments(self, pattern):
        """What the pattern's group is in the calls that it fits."""
        return {match[1] for match in (re.match(pattern, call) for call in self.calls) if match}

    def foreign(self, paths):
        own = os.path.dirname(self.program_path) + "/"
        return {path for path in paths if not path.startswith((*SYSTEM, own))}

    def assert_reaches_for_nothing(self):
        self.assertEqual(self.arguments(r'execve(?:at)?\([^"]*"([^"]*)"'), {self.program_path})
        self.assertEqual(self.arguments(r"socket\((\w+)"), {"AF_UNIX"})
        self.assertEqual(self.arguments(rf"({RIGHTS.replace(',', '|')})\("), set())
        mapped = self.arguments(r"mmap\([^<]*PROT_EXEC[^<]*<(/[^>]*)>")
        self.assertTrue(any("/libQt6Core.so" in path for path in mapped))
        self.assertEqual(self.foreign(mapped), set())
        # Looked for, whether it was there or not.
        looked = {path for path in self.opened() if CODE.search(path)}
        self.assertEqual(self.foreign(looked), {self.world.environment()["FONTCONFIG_FILE"]})

    def opened(self):
        return self.arguments(r'openat\([^"]*"([^"]*)"')

    def test_it_opens_no_network_starts_no_program_and_loads_the_systems_code(self):
        self.use()
        self.assert_reaches_for_nothing()

    def test_it_loads_nothing_from_folders_that_the_environment_names(self):
        plugins = os.path.join(self.home.path, "plugins")
        os.makedirs(os.path.join(plugins, "platforms"))
        self.home.file("plugins/QtQuick/qmldir", 0)
        self.use(**dict.fromkeys(FOLDERS_OF_CODE, plugins))
        self.assert_reaches_for_nothing()
        self.assertEqual({path for path in self.opened() if path.startswith(plugins)}, set())

    def test_it_starts_no_message_bus_where_there_is_none(self):
        program = subprocess.Popen(
            [*self.trace.wrapper, *dies_with_us([self.program_path])],
            env={**self.world.environment(**self.desktop.environment(), **FIXED), "DBUS_SESSION_BUS_ADDRESS": ""},
            stderr=subprocess.PIPE, text=True)
        self.addCleanup(program.kill)
        self.desktop.ask_to_close(wait_for("the window", lambda: self.desktop.window("Drossbin")))
        self.assertEqual(program.communicate(timeout=PATIENCE)[1], "")
        self.assertEqual(program.returncode, 0)
        self.read_trace()
        self.assert_reaches_for_nothing()


if __name__ == "__main__":
    main()
