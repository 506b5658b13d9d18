"""The program under way: started in a program folder of its own, so that nothing of the user's is touched."""

import shutil
import subprocess
import sys
from pathlib import Path

from accessible import PATIENCE, Shown, Unexpected, expect
from disk import Language


class Program:
    """A running copy of `executable` with the files of `data`, laid out in `folder`; in `language`, if named."""

    def __init__(self, executable, data, folder, language=None):
        self.folder = Path(folder)
        shutil.copytree(data, self.folder)
        shutil.copy2(executable, self.folder / "quarvel")
        self._copy_printing(Path(executable).parent)
        if language:
            settings = f"[Language]\r\nCurrentLanguage={language}\r\n"
            (self.folder / "LangSetting.ini").write_bytes(settings.encode())
        self.start()

    def _copy_printing(self, place):
        """Takes the printing library along, from beside the executable or from where it is installed for it."""
        for folder in (place, place.parent / "lib" / "quarvel"):
            library = folder / "quarvel-printing.so"
            if library.exists():
                shutil.copy2(library, self.folder)
                return

    def start(self):
        """Starts it; for the second time, too, once it has ended."""
        self._log = (self.folder.parent / "program.log").open("w+", encoding="utf-8")
        self._process = subprocess.Popen([self.folder / "quarvel"], stdout=self._log, stderr=self._log)
        try:
            self.shown = Shown(self._process.pid)
        except Unexpected:
            print(f"The program does not come up; its last words:\n{self.last_words()}", file=sys.stderr)
            self.stop()
            raise

    def language(self, name):
        return Language(self.folder / f"{name}.lng")

    def window(self):
        """The box of its main or only window, without borders."""
        return max((window.box for window in self.shown.windows()), key=lambda box: box.width * box.height)

    def ended(self):
        """The exit status, or None while it runs."""
        return self._process.poll()

    def kill(self):
        """As the system does when memory runs out: nothing of the program runs any more."""
        self._process.kill()
        self._process.wait()

    def expect_end(self):
        expect("the program's exit status", self.ended, 0)

    def last_words(self):
        self._log.seek(0)
        return self._log.read()[-2000:]

    def stop(self):
        if self.ended() is None:
            self._process.terminate()
            try:
                self._process.wait(PATIENCE)
            except subprocess.TimeoutExpired:
                self._process.kill()
        self._log.close()
