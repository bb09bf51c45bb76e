# SPDX-License-Identifier: MIT
"""What a power cut may leave of the files that a program wrote, made up from the notes that DiskNotes.cpp took.

A disk keeps what was flushed. Of all else it may have any part: a page of a file as it was at any moment since its last
flush, the length of another moment, and a name in a folder that was made, moved or removed since the folder's last flush,
or not. A journaling file system keeps the order of such names, others do not; both are tried.
"""
import os
from pathlib import Path

PAGE = 4096


class File:
    """The steps of one file: what was written at which step, and which steps a flush covers."""

    def __init__(self, contents=b""):
        self.writes = [(-1, 0, contents)]  # step, offset, bytes; offset None: cut to nothing
        self.flushes = []  # first step that is not covered, step at which it was done

    def at(self, step):
        contents = bytearray()
        for when, offset, data in self.writes:
            if when >= step:
                break
            if offset is None:
                contents.clear()
                continue
            contents.extend(b"\0" * (offset + len(data) - len(contents)))
            contents[offset:offset + len(data)] = data
        return bytes(contents)

    def left(self, cut, dice):
        """The bytes that the disk has after a cut of the power before that step."""
        kept = max((covered for covered, done in self.flushes if done < cut), default=0)
        moments = [kept] + [when + 1 for when, _, _ in self.writes if kept <= when < cut]
        whole = {moment: self.at(moment) for moment in moments}
        length = len(whole[dice.choice(moments)])
        pages = []
        for start in range(0, length, PAGE):
            page = whole[dice.choice(moments)][start:min(start + PAGE, length)]
            pages.append(page.ljust(min(PAGE, length - start), b"\0"))
        return b"".join(pages)


class Disk:
    """A folder and all below it. What lies there when this is made is on the disk."""

    def __init__(self, folder):
        self.folder = str(folder)
        self.times = []  # of the steps, seconds
        self.names = []  # step, folder, path, file or folder or None: each change of an entry; a move is two at one step
        self.begun = {}  # inode: step of the flush under way
        self.flushes = {}  # folder: as of files
        self.known = {}
        self.inodes = {}
        for path in [Path(folder), *sorted(Path(folder).rglob("*"))]:
            what = str(path) if path.is_dir() else File(path.read_bytes())
            self.known[str(path)] = self.inodes[str(path.stat().st_ino)] = what

    def follow(self, notes):
        """Takes the lines of one run in."""
        for step, line in enumerate(notes):
            time, verb, *about = line.split()
            self.times.append(float(time))
            getattr(self, verb)(step, *about)

    def put(self, step, path, what):
        self.names.append((step, os.path.dirname(path.rstrip("/")), path.rstrip("/"), what))

    def now(self, path):
        return next((what for _, _, name, what in reversed(self.names) if name == path), self.known.get(path))

    def made(self, step, inode, path):
        what = path.rstrip("/") if path.endswith("/") else File()
        self.inodes[inode] = what
        self.put(step, path, what)

    def wrote(self, step, inode, offset, digits):
        self.inodes[inode].writes.append((step, int(offset), bytes.fromhex(digits)))

    def cut(self, step, inode):
        self.inodes[inode].writes.append((step, None, b""))

    def moved(self, step, source, target):
        self.put(step, target, self.now(source))
        self.put(step, source, None)

    def gone(self, step, path):
        self.put(step, path, None)

    def flush(self, step, inode):
        self.begun[inode] = step

    def flushed(self, step, inode):
        what = self.inodes[inode]
        flushes = self.flushes.setdefault(what, []) if isinstance(what, str) else what.flushes
        flushes.append((self.begun[inode], step))

    def left(self, cut, dice):
        """What a cut of the power before that step leaves: contents by path, None for folders."""
        entries = dict(self.known)
        kept = {}
        inOrder = dice.random() < 0.5
        last = dice.randint(0, cut)  # in order: the first step that is lost
        moments = {}
        for step, folder, path, what in self.names:
            if step >= cut:
                break
            if folder not in kept:
                kept[folder] = max((covered for covered, done in self.flushes.get(folder, []) if done < cut), default=0)
            if path not in moments:
                moments[path] = last if inOrder else dice.randint(0, cut)
            if step < max(kept[folder], moments[path]):
                entries[path] = what
        found = {}
        for path in sorted(entries):
            what = entries[path]
            if what is None or (path != self.folder and os.path.dirname(path) not in found):
                continue
            found[path] = None if isinstance(what, str) else what.left(cut, dice)
        return found


def restore(left, folder, target):
    """Puts what is left of `folder` into `target`."""
    for path, contents in left.items():
        place = Path(target, os.path.relpath(path, folder))
        if contents is None:
            place.mkdir(parents=True, exist_ok=True)
        else:
            place.write_bytes(contents)
