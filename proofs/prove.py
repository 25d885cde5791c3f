"""Runs proofs and holds the families' rows to them: the program behind scripts/prove."""
import glob
import importlib.util
import os
import re
import resource
import shutil
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LIBRARY = {"proof", "prove", "powers", "sines", "lanes", "logs", "permitted"}
WIDTHS_ALIKE = 16  # what a proof of the kernel without a width of its own says


def known():
    names = (os.path.splitext(os.path.basename(path))[0] for path in glob.glob(os.path.join(ROOT, "proofs/*.py")))
    return sorted(set(names) - LIBRARY)


def row_of(base):
    """The file of a family's row, its text, and where the row begins and ends."""
    for path in glob.glob(os.path.join(ROOT, "src/families/*.def")):
        text = open(path).read()
        start = text.find(f'{{.base = "{base}",')
        if start >= 0:
            end = text.find("\n{.base", start + 1)
            return path, text, start, len(text) if end < 0 else end
    sys.exit(f"scripts/prove: no row of {base}")


def with_bounds(row, bounds):
    """The row with bounds by width."""
    row = re.sub(r"\n \.proved = [^\n]*", "", row)
    fields = []
    if WIDTHS_ALIKE in bounds:
        fields.append(f".proved = {bounds[WIDTHS_ALIKE]},")
    own = [f"{{{width}, {bound}}}" for width, bound in sorted(bounds.items()) if width != WIDTHS_ALIKE]
    if own:
        fields.append(f".width_proved = {{{', '.join(own)}}},")
    line = "\n " + " ".join(fields)
    at = row.find("\n .usual")
    return row[:at] + line + row[at:]


def processor_seconds():
    """That ended children, and theirs, have had."""
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def main():
    arguments = sys.argv[1:]
    check = "--check" in arguments
    names = [a for a in arguments if a != "--check"] or known()
    for name in names:
        if name not in known():
            print(f"scripts/prove: no proof of {name}; there are {', '.join(known())}", file=sys.stderr)
            return 2
    missing = [tool for tool in ("gappa", "sollya") if not shutil.which(tool)]
    missing += [] if importlib.util.find_spec("gmpy2") else ["python3-gmpy2"]
    if missing:
        print(f"scripts/prove: {', '.join(missing)} not installed; scripts/prove does it", file=sys.stderr)
        return 2
    failed = 0
    for number, name in enumerate(names, 1):
        print(f"[{number}/{len(names)}] {name} ...", end=" ", flush=True)
        begun = processor_seconds()
        script = os.path.join(ROOT, "proofs", name + ".py")
        ran = subprocess.run([sys.executable, script], capture_output=True, text=True)
        proved = re.findall(r"^proved (\S+) (\d+) ([0-9.]+) (.*)$", ran.stdout, re.M)
        if ran.returncode != 0 or not proved:
            print(f"not proved\n{ran.stdout}{ran.stderr}")
            failed = 1
            continue
        print(f"{processor_seconds() - begun:.0f} s of a processor")
        for base in sorted({p[0] for p in proved}):
            bounds = {int(width): float(bound) for b, width, bound, _ in proved if b == base}
            for _, width, bound, where in (p for p in proved if p[0] == base):
                at = "" if int(width) == WIDTHS_ALIKE else f" at width {width}"
                print(f"  {base}{at}: at most {bound} ulp ({where})")
            path, text, start, end = row_of(base)
            row = with_bounds(text[start:end], bounds)
            if row == text[start:end]:
                continue
            if check:
                print(f"  the row of {base} says otherwise")
                failed = 1
            else:
                open(path, "w").write(text[:start] + row + text[end:])
    return failed


sys.exit(main())
