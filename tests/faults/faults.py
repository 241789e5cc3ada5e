#!/usr/bin/env python3
"""Damaged data files and odd install paths, against the real program.

    faults.py <family> <application directory> <tallix_xgrab>

Each case copies the application directory into a scratch folder the build
tree is not reachable from, damages one thing, starts the program on a
virtual X display from "/", and drives it with real X events: the window
must come up with the expected title, take rows, open the preview where the
case concerns playback, and close by its button with exit code 0, no signal,
no hang and nothing written. Exit code 77 when Xvfb or xdotool is missing.
"""

import os
import random
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import time

TITLE_EN = "Tallix Storage Planner"
TITLE_CN = "Tallix 存储规划工具"
TITLE_KEYS = "ProductName"  # no dictionary: every label shows its key
START_SECONDS = 30
EXIT_SECONDS = 20

# Window coordinates of the controls the cases touch.
ADD_STREAM = (90, 89)
CLOSE = (1082, 20)
ROW1_COMPRESSION = (236, 176)
ROW1_SCENE = (377, 176)
ROW1_PREVIEW = (472, 176)
PREVIEW_CLOSE = (439, 13)
SPINNER_POINTS = ["252,577", "300,580", "300,600", "357,582", "357,598"]

NOBODY = 65534
MAX_RESIDENT_MB = 400


class CaseFailed(Exception):
    pass


def run(*args, **kw):
    return subprocess.run(list(args), capture_output=True, text=True, **kw)


# --- damaged variants of one file ---------------------------------------------------------

def _junk(n, seed):
    return random.Random(seed).randbytes(n)


def _insert_middle(data, extra):
    mid = len(data) // 2
    return data[:mid] + extra + data[mid:]


def _write(path, data):
    with open(path, "wb") as f:
        f.write(data)


def _replace(path, make):
    """Removes whatever is at path and lets make(path) put the damaged thing there."""
    if os.path.islink(path) or os.path.isfile(path):
        os.unlink(path)
    elif os.path.isdir(path):
        shutil.rmtree(path)
    make(path)


def _nested(kind):
    if kind == "xml":
        return b"<?xml version=\"1.0\"?>" + b"<a>" * 200000
    if kind == "css":
        return b"* " + b"{ QWidget " * 200000
    return b"\x89PNG\r\n\x1a\n" + b"\0" * 100000


def _malformed(kind, data):
    if kind == "xml":
        return data[: len(data) // 2] + b"<<< =\"\" & </Language"
    if kind == "css":
        return b"QWidget { color: ; background: url(; } }}} {{ min-width: px"
    return data[: len(data) // 2]  # cut short: images, clips, the library


def variants(kind):
    """(name, damage(path, original bytes), needs an unprivileged user)."""
    def put(fn):
        return lambda p, d: _replace(p, lambda q: _write(q, fn(d)))

    return [
        ("missing", lambda p, d: _replace(p, lambda q: None), False),
        ("empty", put(lambda d: b""), False),
        ("malformed", put(lambda d: _malformed(kind, d)), False),
        ("binary junk", put(lambda d: _junk(65536, 15)), False),
        # Sparse: a gigabyte on paper, nothing on disk.
        ("huge", lambda p, d: _replace(p, lambda q: os.truncate(_touch(q), 1 << 30)), False),
        ("deeply nested", put(lambda d: _nested(kind)), False),
        ("invalid UTF-8", put(lambda d: _insert_middle(d, b"\xff\xfe\xc3\x28\xed\xa0\x80")),
         False),
        ("embedded NUL", put(lambda d: _insert_middle(d, b"\0\0\0")), False),
        ("control characters", put(lambda d: _insert_middle(d, bytes(range(1, 32)) + b"\x7f")),
         False),
        ("a directory", lambda p, d: _replace(p, os.mkdir), False),
        ("a FIFO", lambda p, d: _replace(p, os.mkfifo), False),
        ("unreadable", lambda p, d: os.chmod(p, 0), True),
        ("symlink to /dev/zero", lambda p, d: _replace(p, lambda q: os.symlink("/dev/zero", q)),
         False),
    ]


def _touch(path):
    open(path, "wb").close()
    return path


# --- one run of the program ----------------------------------------------------------------

def listing(root):
    """Every entry under root with its type, size and change times."""
    out = []
    for dirpath, dirnames, filenames in os.walk(root):
        for name in sorted(dirnames + filenames):
            p = os.path.join(dirpath, name)
            st = os.lstat(p)
            out.append((os.path.relpath(p, root), stat.S_IFMT(st.st_mode), st.st_size,
                        st.st_mtime_ns, st.st_ctime_ns))
    return sorted(out)


def window_ids(title):
    """title: one title, or a tuple of the acceptable ones."""
    titles = title if isinstance(title, tuple) else (title,)
    pattern = "^(%s)$" % "|".join(_regex(t) for t in titles)
    r = run("xdotool", "search", "--onlyvisible", "--name", pattern)
    return [w for w in r.stdout.split() if w]


def _regex(text):
    return "".join("\\" + c if c in ".^$*+?()[]{}|\\" else c for c in text)


def click(wid, xy):
    run("xdotool", "mousemove", "--window", wid, str(xy[0]), str(xy[1]), "click", "1")


def keys(*names):
    run("xdotool", "key", "--delay", "60", *names)


class Session:
    def __init__(self, grab):
        self.grab = grab
        self.scratch = tempfile.mkdtemp(prefix="tallix-faults-")
        os.chmod(self.scratch, 0o755)
        # A display number of its own, far from the low ones that other runs on the
        # machine take and free again.
        for attempt in range(20):
            number = str(random.SystemRandom().randrange(200, 2000))
            if os.path.exists("/tmp/.X%s-lock" % number):
                continue
            self.xvfb = subprocess.Popen(
                ["Xvfb", ":" + number, "-screen", "0", "1400x900x24", "-nolisten", "tcp",
                 "-noreset"],
                stdout=subprocess.DEVNULL,
                stderr=open(os.path.join(self.scratch, "xvfb.log"), "w"))
            os.environ["DISPLAY"] = ":" + number
            for _ in range(100):
                if self.xvfb.poll() is not None:
                    break
                if run("xdotool", "getmouselocation").returncode == 0:
                    break
                time.sleep(0.1)
            if self.xvfb.poll() is None:
                break
        else:
            raise RuntimeError("Xvfb did not start: %s"
                               % open(os.path.join(self.scratch, "xvfb.log")).read())
        self.count = 0

    def close(self):
        if os.environ.get("TALLIX_FAULTS_KEEP"):
            print(open(os.path.join(self.scratch, "xvfb.log")).read())
        self.xvfb.terminate()
        self.xvfb.wait()
        shutil.rmtree(self.scratch, ignore_errors=True)

    def new_case(self, app_src, install="app"):
        """A fresh case folder with a copy of the application at install (relative)."""
        self.count += 1
        case = os.path.join(self.scratch, "case%03d" % self.count)
        os.makedirs(os.path.join(case, "home"))
        os.makedirs(os.path.join(case, "runtime"), mode=0o700)
        app = os.path.join(case, "install", install)
        os.makedirs(os.path.dirname(app), exist_ok=True)
        shutil.copytree(app_src, app, symlinks=True)
        for dirpath, dirnames, filenames in os.walk(case):
            os.chmod(dirpath, 0o755)
        os.chmod(os.path.join(case, "runtime"), 0o700)
        return case, app

    def start(self, case, app, as_nobody=False, cwd="/", extra_env=None, wrap=None):
        env = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "DISPLAY": os.environ["DISPLAY"],
            "HOME": os.path.join(case, "home"),
            "XDG_RUNTIME_DIR": os.path.join(case, "runtime"),
            "QT_QPA_PLATFORM": "xcb",
            "LANG": "C.UTF-8",
        }
        env.update(extra_env or {})
        argv = [os.path.join(app, "tallix")]
        if wrap:
            argv = wrap + argv
        if as_nobody:
            argv = ["setpriv", "--reuid=%d" % NOBODY, "--regid=%d" % NOBODY,
                    "--clear-groups"] + argv
        self.log = open(os.path.join(self.scratch, "case%03d.log" % self.count), "w+")
        return subprocess.Popen(argv, cwd=cwd, env=env, stdout=self.log, stderr=self.log,
                                start_new_session=True)

    def output(self):
        self.log.seek(0)
        return self.log.read()[-3000:]


def wait_window(proc, title, seconds):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        ids = window_ids(title)
        if ids:
            return ids[0]
        if proc.poll() is not None:
            raise CaseFailed("ended before its window came up: %s" % describe_rc(proc.returncode))
        time.sleep(0.2)
    others = run("xdotool", "search", "--onlyvisible", "--name", ".").stdout.split()
    names = sorted({run("xdotool", "getwindowname", w).stdout.strip() for w in others} - {""})
    raise CaseFailed("no window titled %r within %ds (visible: %s)" % (title, seconds, names))


def wait_gone(title, seconds):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not window_ids(title):
            return
        time.sleep(0.2)
    raise CaseFailed("window %r still open" % title)


def resident_mb(pid):
    try:
        with open("/proc/%d/status" % pid) as f:
            for line in f:
                if line.startswith("VmRSS:"):
                    return int(line.split()[1]) // 1024
    except OSError:
        pass
    return 0


def describe_rc(rc):
    if rc is None:
        return "still running"
    if rc < 0:
        return "killed by %s" % signal.Signals(-rc).name
    return "exit code %d" % rc


def geometry(wid):
    r = run("xdotool", "getwindowgeometry", "--shell", wid)
    values = dict(line.split("=", 1) for line in r.stdout.split() if "=" in line)
    return int(values.get("WIDTH", 0)), int(values.get("HEIGHT", 0))


def spinner_colours(grab, wid, path):
    r = run(grab, wid, path, *SPINNER_POINTS)
    return r.stdout.split()


def open_preview(wid):
    click(wid, ROW1_COMPRESSION)
    time.sleep(0.6)
    keys("Down", "Down", "Down", "Return")  # smart264 offers scenes
    time.sleep(0.4)
    click(wid, ROW1_SCENE)
    time.sleep(0.6)
    keys("Down", "Return")  # Scene 1
    time.sleep(0.4)
    click(wid, ROW1_PREVIEW)


def drive(session, case, app, title, preview=False, as_nobody=False, cwd="/",
          extra_env=None, check=None, wrap=None):
    """One run; raises CaseFailed with the reason. check(session, pid, wid) adds assertions."""
    if as_nobody:
        os.chown(os.path.join(case, "runtime"), NOBODY, NOBODY)
    before = listing(case)
    proc = session.start(case, app, as_nobody, cwd, extra_env, wrap)
    try:
        wid = wait_window(proc, title, START_SECONDS)
        size = geometry(wid)
        if size != (1100, 750):
            raise CaseFailed("window is %dx%d, not 1100x750" % size)
        # Controls sized by a sheet past the window once took gigabytes.
        if resident_mb(proc.pid) > MAX_RESIDENT_MB:
            raise CaseFailed("%d MB resident" % resident_mb(proc.pid))
        for _ in range(3):
            click(wid, ADD_STREAM)
            time.sleep(0.15)
        if preview:
            open_preview(wid)
            dlg = wait_window(proc, "Scene 1", 15)
            time.sleep(1.0)  # let a clip start, or the no-video picture show
        if check:
            check(session, proc.pid, wid)
        if preview:
            click(dlg, PREVIEW_CLOSE)
            wait_gone("Scene 1", 10)
        click(wid, CLOSE)
        try:
            proc.wait(EXIT_SECONDS)
        except subprocess.TimeoutExpired:
            raise CaseFailed("still running %ds after the close button" % EXIT_SECONDS)
        if proc.returncode != 0:
            raise CaseFailed(describe_rc(proc.returncode) + " after the close button")
    except CaseFailed:
        shot = os.environ.get("TALLIX_FAULTS_SHOT")
        if shot and "wid" in locals():
            run(session.grab, wid, shot, "1,1")
        raise
    finally:
        if proc.poll() is None:
            os.killpg(proc.pid, signal.SIGKILL)
            proc.wait()
    after = listing(case)
    if before != after:
        changed = sorted(set(before) ^ set(after))
        raise CaseFailed("files written: %s" % [c[0] for c in changed][:8])


# --- the tables ----------------------------------------------------------------------------

def set_language(app, value):
    _write(os.path.join(app, "Language.xml"),
           b"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Language>\n"
           b"    <Select value=\"%d\"/>\n</Language>\n" % value)


def file_family(name, rel, kind, title_when_broken, preview=False, prepare=None):
    """Every damaged variant of the file(s) at rel (a list: damaged together)."""
    def make(vname, damage, nobody):
        def case(session, app_src):
            case_dir, app = session.new_case(app_src)
            if prepare:
                prepare(app)
            for r in rel:
                p = os.path.join(app, r)
                with open(p, "rb") as f:
                    original = f.read()
                damage(p, original)
            title = title_when_broken(vname) if callable(title_when_broken) else title_when_broken
            drive(session, case_dir, app, title, preview=preview, as_nobody=nobody)
        return ("%s %s" % (name, vname), case)

    return [make(*v) for v in variants(kind)]


def language_title(vname):
    # Without a readable choice the program starts in Chinese; a damaged one may still
    # parse.
    return TITLE_CN if vname in ("missing", "empty", "binary junk", "huge", "deeply nested",
                                 "a directory", "a FIFO", "unreadable",
                                 "symlink to /dev/zero") else (TITLE_EN, TITLE_CN)


def dictionary_title(shown):
    # Without the dictionary every label shows its key; a damaged one may still parse.
    return lambda vname: TITLE_KEYS if vname in (
        "missing", "empty", "binary junk", "huge", "deeply nested", "a directory", "a FIFO",
        "unreadable", "symlink to /dev/zero") else (TITLE_KEYS, shown)


STYLE_EXTRA = [
    ("absurd sizes", b"* { min-width: 2147483647px; min-height: 2147483647px; }\n"
                     b"QSpinBox { max-width: 2147483647px; padding: 2147483647px; }\n"
                     b"QPushButton { width: 99999999px; height: 99999999px; }\n"),
    ("huge border", b"* { border: 2147483647px solid red; }\n"),
    ("huge em and font", b"* { font-size: 2147483647px; margin: 999999em; }\n"),
]


def style_cases():
    cases = file_family("Tallix_Style.css", ["Tallix_Style.css"], "css", TITLE_EN)

    def make(vname, text):
        def case(session, app_src):
            case_dir, app = session.new_case(app_src)
            with open(os.path.join(app, "Tallix_Style.css"), "ab") as f:
                f.write(text)
            drive(session, case_dir, app, TITLE_EN)
        return ("Tallix_Style.css " + vname, case)

    def whole(vname, text):
        def case(session, app_src):
            case_dir, app = session.new_case(app_src)
            _write(os.path.join(app, "Tallix_Style.css"), text)
            drive(session, case_dir, app, TITLE_EN)
        return ("Tallix_Style.css only " + vname, case)

    return cases + [make(*e) for e in STYLE_EXTRA] + [whole(*e) for e in STYLE_EXTRA]


def skin_cases():
    skin = "Bin/Skin"

    def images(app):
        return [os.path.join(skin, n) for n in sorted(os.listdir(os.path.join(app, skin)))
                if n.endswith(".png")]

    def make(vname, damage, nobody):
        def case(session, app_src):
            case_dir, app = session.new_case(app_src)
            for r in images(app):
                p = os.path.join(app, r)
                with open(p, "rb") as f:
                    original = f.read()
                damage(p, original)
            drive(session, case_dir, app, TITLE_EN, preview=True, as_nobody=nobody)
        return ("skin images " + vname, case)

    def folder(vname, damage, nobody=False):
        def case(session, app_src):
            case_dir, app = session.new_case(app_src)
            damage(os.path.join(app, skin))
            drive(session, case_dir, app, TITLE_EN, preview=True, as_nobody=nobody)
        return ("skin folder " + vname, case)

    return [make(*v) for v in variants("png")] + [
        folder("missing", shutil.rmtree),
        folder("empty", lambda p: (shutil.rmtree(p), os.mkdir(p))),
        folder("a file", lambda p: (shutil.rmtree(p), _write(p, b"skin"))),
        folder("a FIFO", lambda p: (shutil.rmtree(p), os.mkfifo(p))),
        folder("unreadable", lambda p: os.chmod(p, 0), True),
        folder("symlink to /dev/zero",
               lambda p: (shutil.rmtree(p), os.symlink("/dev/zero", p))),
    ]


def clip_cases():
    return file_family("clips", ["1high.kvf", "1medium.kvf", "1low.kvf"], "bin", TITLE_EN,
                       preview=True)


def vexplay_cases():
    cases = file_family("libvexplay.so", ["libvexplay.so"], "bin", TITLE_EN, preview=True)

    def make(vname, damage):
        def case(session, app_src):
            case_dir, app = session.new_case(app_src)
            p = os.path.join(app, "libvexplay.so")
            with open(p, "rb") as f:
                original = f.read()
            _replace(p, lambda q: _write(q, damage(original)))
            drive(session, case_dir, app, TITLE_EN, preview=True)
        return ("libvexplay.so " + vname, case)

    def cut_in_loads(d):
        # Headers intact, the file ending halfway through its last loadable segment:
        # the pages past the end fault when touched.
        import struct
        phoff, = struct.unpack_from("<Q", d, 32)
        phentsize, phnum = struct.unpack_from("<HH", d, 54)
        ends = []
        for i in range(phnum):
            p_type, _, p_offset, _, _, p_filesz = struct.unpack_from(
                "<IIQQQQ", d, phoff + i * phentsize)
            if p_type == 1 and p_filesz:  # PT_LOAD
                ends.append((p_offset, p_filesz))
        offset, filesz = max(ends)
        return d[: offset + filesz // 2]

    def headers_only(d):
        return d[:4096]

    def other_machine(d):
        return d[:18] + b"\xb7\x00" + d[20:]  # e_machine: AArch64

    return cases + [make("truncated after its headers", headers_only),
                    make("cut inside its segments", cut_in_loads),
                    make("for another machine", other_machine)]


INSTALL_PATHS = [
    ("plain", "app"),
    ("spaces", "my programs/tallix app"),
    ("apostrophe", "home/o'brien/tallix"),
    ("double quote", 'say "hi"/tallix'),
    ("dollar", "$HOME/$(x)/tallix"),
    ("percent", "100%/%20%s%n/tallix"),
    ("backslash", "back\\slash\\/tallix"),
    ("parentheses and semicolon", "a (b); c/tallix"),
    ("non-ASCII", "应用 ünïcødé ☃/tallix"),
    ("long", "/".join(["l" * 200] * 8) + "/tallix"),
]


def path_cases():
    baseline = {}

    def make(vname, install):
        def case(session, app_src):
            case_dir, app = session.new_case(app_src, install)

            def skin(session, pid, wid):
                time.sleep(0.3)
                colours = spinner_colours(session.grab, wid,
                                          os.path.join(session.scratch, "grab.png"))
                if "plain" not in baseline:
                    baseline["plain"] = colours
                elif colours != baseline["plain"]:
                    raise CaseFailed("the spinner lost its skin: %s, not %s"
                                     % (colours, baseline["plain"]))
            drive(session, case_dir, app, TITLE_EN, check=skin)
        return ("install path " + vname, case)

    return [make(*p) for p in INSTALL_PATHS]


def maps_of(pid):
    with open("/proc/%d/maps" % pid) as f:
        return [line.split(None, 5)[5].strip() for line in f if len(line.split(None, 5)) > 5]


def run_path_entries(binary):
    r = run("readelf", "-d", binary)
    for line in r.stdout.splitlines():
        if "(RUNPATH)" in line or "(RPATH)" in line:
            return line.split("[", 1)[1].rsplit("]", 1)[0].split(":")
    return []


def env_cases():
    def own_library(session, app_src):
        # A copy without a playback library must not reach the build folder's.
        case_dir, app = session.new_case(app_src)
        os.unlink(os.path.join(app, "libvexplay.so"))

        def check(session, pid, wid):
            foreign = [m for m in maps_of(pid) if "libvexplay" in m]
            if foreign:
                raise CaseFailed("loaded a playback library it does not own: %s" % foreign[0])
        drive(session, case_dir, app, TITLE_EN, preview=True, check=check)

    def run_path(session, app_src):
        case_dir, app = session.new_case(app_src)
        entries = run_path_entries(os.path.join(app, "tallix"))
        bad = [e for e in entries if not e.startswith("$ORIGIN")]
        if bad:
            raise CaseFailed("run path %r holds %s" % (":".join(entries),
                                                       ["(empty)" if not e else e for e in bad]))

    def foreign_cwd(session, app_src):
        # Libraries of matching names in the folder the user starts from.
        case_dir, app = session.new_case(app_src)
        cwd = os.path.join(case_dir, "home")
        for lib in ("libvexplay.so", "libtinyxml.so.2.6.2", "libQt6Core.so.6"):
            _write(os.path.join(cwd, lib), b"not a library")

        def check(session, pid, wid):
            foreign = [m for m in maps_of(pid) if m.startswith(cwd)]
            if foreign:
                raise CaseFailed("loaded %s" % foreign[0])
        drive(session, case_dir, app, TITLE_EN, preview=True, cwd=cwd, check=check)

    def no_bus(session, app_src):
        case_dir, app = session.new_case(app_src)
        trace = os.path.join(session.scratch, "exec.trace")
        drive(session, case_dir, app, TITLE_EN,
              wrap=["strace", "-f", "-qq", "-e", "trace=execve", "-e", "signal=none",
                    "-o", trace])
        with open(trace) as f:
            execs = [line for line in f if "execve(" in line]
        others = [e for e in execs[1:]]
        if others:
            raise CaseFailed("started other programs: %s" % others[0].strip())

    return [("run path of the program", run_path),
            ("copy without its playback library", own_library),
            ("started from a folder of look-alike libraries", foreign_cwd),
            ("no session bus", no_bus)]


FAMILIES = {
    "config": lambda: file_family("config.xml", ["config.xml"], "xml", TITLE_EN,
                                  prepare=lambda app: _write(
                                      os.path.join(app, "config.xml"),
                                      b"<?xml version=\"1.0\"?>\n<Config><UI>"
                                      b"<RecordblePersentage value=\"90\"/></UI></Config>\n")),
    "language": lambda: file_family("Language.xml", ["Language.xml"], "xml", language_title),
    "dict_en": lambda: file_family("Lang_en.xml", ["Lang_en.xml"], "xml", dictionary_title(TITLE_EN)),
    "dict_cn": lambda: file_family("Lang_cn.xml", ["Lang_cn.xml"], "xml", dictionary_title(TITLE_CN),
                                   prepare=lambda app: set_language(app, 1)),
    "style": style_cases,
    "skin": skin_cases,
    "clips": clip_cases,
    "vexplay": vexplay_cases,
    "paths": path_cases,
    "env": env_cases,
}


def main():
    family, app_src, grab = sys.argv[1], os.path.abspath(sys.argv[2]), sys.argv[3]
    for tool in ("Xvfb", "xdotool", "strace", "setpriv"):
        if not shutil.which(tool):
            print("skipped: %s is not installed" % tool)
            return 77
    only = os.environ.get("TALLIX_FAULTS_ONLY")
    cases = [c for c in FAMILIES[family]() if not only or only in c[0]]
    session = Session(grab)
    failed = 0
    try:
        for name, case in cases:
            started = time.monotonic()
            try:
                case(session, app_src)
                print("PASS  %-55s %5.1fs" % (name, time.monotonic() - started), flush=True)
            except (CaseFailed, OSError, subprocess.SubprocessError) as e:
                failed += 1
                print("FAIL  %-55s %s" % (name, e), flush=True)
                out = session.output() if hasattr(session, "log") else ""
                if out.strip():
                    print("      program output:\n      " + out.replace("\n", "\n      "))
    finally:
        session.close()
    print("%d of %d cases passed" % (len(cases) - failed, len(cases)))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
