#!/usr/bin/env python3
"""velmora-cli matrix against numpy on seeded random matrices.

Usage: matrix_numpy_agreement.py VELMORA_CLI SCRATCH_DIR

Real and complex matrices from 1 x 1 up to 50 x 50, with entries of ordinary
size and entries scaled far below 1E-04 and far above 1E+15, are inverted and
solved by the program at 15 places; a real matrix's determinant is compared
too. Every working value of the elimination travels as printed text, so any
print that reads back as another number shows here as a wrong result.

numpy is required: without it the import fails and so does the test.
"""

import os
import subprocess
import sys

import numpy as np

PLACES = 15
# The elimination cuts every working value to 15 places and 15 digits; the
# error that leaves grows with the size and the condition of the matrix, which
# these random matrices keep modest. An entry may be off by a relative error
# or by some units of the last printed place, whichever is larger.
RELATIVE_TOLERANCE = 1e-7
LAST_PLACE_UNITS = 50
SIZES = (1, 2, 3, 5, 8, 12, 20, 35, 50)
SCALES = (1.0, 1e-6, 1e8)


def cell_text(value):
    """A matrix cell as a person would type it, in positional form."""
    re = float(np.real(value))
    im = float(np.imag(value))
    text = np.format_float_positional(re, trim="-")
    if im != 0:
        sign = "-" if im < 0 else "+"
        text += sign + "j" + np.format_float_positional(abs(im), trim="-")
    return text


def read_cell(text):
    """A printed result cell: "R", "R + jI" or "R - jI"."""
    s = text.replace(" ", "")
    at = s.find("j")
    if at < 0:
        return complex(float(s), 0.0)
    real = s[: at - 1] or "0"
    imag = float(s[at + 1:] or "1")
    return complex(float(real), -imag if s[at - 1] == "-" else imag)


def write_mcf(path, rows):
    lines = [" %d  %d " % (len(rows), len(rows[0]))]
    for row in rows:
        lines.extend(cell_text(v) for v in row)
    with open(path, "w", newline="") as f:
        f.write("\r\n".join(lines) + "\r\n")


def read_mcf(text):
    lines = text.replace("\r\n", "\n").split("\n")
    rows, cols = (int(w) for w in lines[0].split())
    cells = [read_cell(t) for t in lines[1: 1 + rows * cols]]
    return np.array(cells, dtype=complex).reshape(rows, cols)


def run(cli, args):
    done = subprocess.run([cli, "matrix"] + args, capture_output=True, text=True)
    if done.returncode != 0:
        raise RuntimeError("velmora-cli matrix %s: %s" % (" ".join(args), done.stderr))
    return done.stdout, done.stderr


def determinant(stderr):
    for line in stderr.splitlines():
        if line.startswith("Det |A| = "):
            return read_cell(line[len("Det |A| = "):])
    raise RuntimeError("no determinant in: " + stderr)


def random_matrix(gen, n, is_complex, scale):
    a = gen.uniform(-1.0, 1.0, (n, n))
    if is_complex:
        a = a + 1j * gen.uniform(-1.0, 1.0, (n, n))
    # A dominant diagonal keeps the condition modest at every size.
    a = a + np.eye(n) * n * 0.5
    # Six significant digits, as a person types them; numpy reads the same.
    a = np.vectorize(lambda v: complex(float("%.6g" % v.real), float("%.6g" % v.imag)))(a)
    return a * scale


def disagreement(got, want):
    """How far the worst entry is off, as a multiple of what is allowed."""
    allowed = RELATIVE_TOLERANCE * np.max(np.abs(want)) + LAST_PLACE_UNITS * 10.0 ** -PLACES
    return np.max(np.abs(got - want)) / allowed


def main():
    cli, scratch = sys.argv[1], sys.argv[2]
    os.makedirs(scratch, exist_ok=True)
    gen = np.random.default_rng(20261123)
    failures = []
    checked = 0
    for is_complex in (False, True):
        for scale in SCALES:
            for n in SIZES:
                a = random_matrix(gen, n, is_complex, scale)
                b = gen.uniform(-1.0, 1.0, (n, 1)) * scale
                a_path = os.path.join(scratch, "a.mcf")
                b_path = os.path.join(scratch, "b.mcf")
                write_mcf(a_path, a.tolist())
                write_mcf(b_path, b.tolist())
                # numpy works on exactly the numbers the cells hold.
                a = np.array([[read_cell(cell_text(v)) for v in row] for row in a.tolist()])
                b = np.array([[read_cell(cell_text(v))] for v in b[:, 0].tolist()])
                label = "%s %dx%d scale %g" % ("complex" if is_complex else "real", n, n, scale)
                try:
                    checked += check(cli, a_path, b_path, a, b, is_complex, label, failures)
                except RuntimeError as e:
                    failures.append("%s: %s" % (label, str(e).strip()))
    for f in failures:
        print(f)
    print("%d results checked, %d disagree with numpy" % (checked, len(failures)))
    return 1 if failures else 0


def check(cli, a_path, b_path, a, b, is_complex, label, failures):
    """Inverse, determinant and solution of one matrix; returns how many."""
    out, err = run(cli, ["inverse", a_path, "--precision", str(PLACES)])
    e = disagreement(read_mcf(out), np.linalg.inv(a))
    if not e <= 1:
        failures.append("%s: inverse off by %.3g times the tolerance" % (label, e))
    if not is_complex:
        # The determinant of a complex matrix follows the program's own
        # running product, which is not the true determinant.
        det = determinant(err)
        sign, log_abs = np.linalg.slogdet(a.real)
        if log_abs >= 700:
            pass  # beyond the range of a double: nothing to compare
        elif det.imag != 0:
            failures.append("%s: determinant %r is not real" % (label, det))
        else:
            want = sign * np.exp(log_abs)
            if abs(det.real - want) > RELATIVE_TOLERANCE * abs(want) + 10.0 ** -PLACES:
                failures.append("%s: determinant %r, numpy %r" % (label, det.real, want))
    out, _ = run(cli, ["solve", a_path, b_path, "--precision", str(PLACES)])
    e = disagreement(read_mcf(out), np.linalg.solve(a, b))
    if not e <= 1:
        failures.append("%s: solution off by %.3g times the tolerance" % (label, e))
    return 2


if __name__ == "__main__":
    sys.exit(main())
