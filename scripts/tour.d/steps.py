"""A tour is told step by step; the first step that goes wrong ends it, with all that helps to see why."""

import sys
import time
from contextlib import contextmanager

from accessible import Unexpected


class Steps:
    def __init__(self, program, eyes):
        self._program = program
        self._eyes = eyes
        self._number = 0
        self._start = time.monotonic()

    @contextmanager
    def step(self, claim):
        """Prints the claim when what is done inside comes out."""
        self._number += 1
        try:
            yield
        except Exception as fault:  # whatever it is, the screen as it is now tells more than a trace
            self._tell(claim, fault)
            if not isinstance(fault, Unexpected):
                raise
            sys.exit(1)
        print(f"ok {self._number:2}  {claim}", flush=True)

    def done(self):
        print(f"{self._number} steps in {time.monotonic() - self._start:.1f} s")

    def _tell(self, claim, fault):
        print(f"FAILED {self._number}  {claim}\n{fault}", file=sys.stderr)
        ended = self._program.ended()
        if ended is not None:
            print(f"The program has ended with {ended}; its last words:", file=sys.stderr)
            print(self._program.last_words(), file=sys.stderr)
            return
        print(f"What the program shows:\n{self._program.shown.tree()}", file=sys.stderr)
        print(f"A picture of it: {self._eyes.whole('failure')}", file=sys.stderr)
