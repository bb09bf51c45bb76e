# SPDX-License-Identifier: MIT
"""How scripts wait: for conditions, never for a time."""
import time

PATIENCE = 60  # seconds that a very busy machine may take; used up only by a fault


def wait_for(what, condition, seconds=PATIENCE):
    """What the condition gives, once that is something."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if value := condition():
            return value
        time.sleep(0.03)
    raise TimeoutError(f"no {what} within {seconds} s")
