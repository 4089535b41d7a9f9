"""Lets canmatrix decode random frames by DBCs that xdd2dbc writes, and compares the values with those that the layout of
the PDOs gives. Usage: decode.py TOOLS FILE..., where TOOLS is the folder with the programs."""

import json
import os
import random
import struct
import subprocess
import sys
import tempfile

import canmatrix
import canmatrix.formats

NODE_ID = 5


def run(program, *arguments):
    return subprocess.run(
        [os.path.join(TOOLS, program), *arguments], check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL
    ).stdout


def number(text, otherwise):
    return float(text) if text else otherwise


def expected(field, data):
    """The physical value of a field: what its bits say by themselves."""
    raw = (int.from_bytes(data, "little") >> field["offset"]) & ((1 << field["bits"]) - 1)
    if field["kind"] == "signed" and raw >> (field["bits"] - 1):
        raw -= 1 << field["bits"]
    if field["kind"] == "real":
        form = "<f" if field["bits"] == 32 else "<d"
        raw = struct.unpack(form, raw.to_bytes(field["bits"] // 8, "little"))[0]
    texts = field["texts"] or {}
    if field["kind"] in ("signed", "unsigned", "real"):
        return (raw + number(texts.get("offset"), 0)) * number(texts.get("multiplier"), 1)
    return raw


def is_same(left, right):
    return left == right or (left != left and right != right) or abs(left - right) <= 1e-6 * abs(right)


def compare(name, frame, pdo):
    """Decodes some data, and returns how many values were compared and what differs."""
    compared = 0
    wrong = []
    generator = random.Random(name)
    if frame is None or frame.size != pdo["bytes"]:
        return 0, ["%s: there is no message of %d bytes" % (name, pdo["bytes"])]
    fields = {field["offset"]: field for field in pdo["fields"] if field["kind"] != "dummy"}
    if sorted(fields) != sorted(signal.start_bit for signal in frame.signals):
        return 0, ["%s: the signals begin at other bits" % name]
    for _ in range(20):
        data = generator.randbytes(frame.size)
        decoded = frame.decode(data)
        for signal in frame.signals:
            field = fields[signal.start_bit]
            value = float(decoded[signal.name].phys_value)
            wanted = float(expected(field, data))
            compared += 1
            if not is_same(value, wanted):
                wrong.append("%s %s: %r is %r instead of %r" % (name, signal.name, data.hex(), value, wanted))
    return compared, wrong


def main(files):
    total = 0
    messages = 0
    failed = False
    for file in files:
        with tempfile.TemporaryDirectory() as folder:
            dbc = os.path.join(folder, "net.dbc")
            run("xdd2dbc", "--pdos-only", "-o", dbc, "%s:%d" % (file, NODE_ID))
            matrix = canmatrix.formats.loadp_flat(dbc)
        layout = json.loads(run("xddinfo", "--pdos", "--json", "--node-id", str(NODE_ID), file))
        by_id = {(frame.arbitration_id.id, frame.arbitration_id.extended): frame for frame in matrix.frames}
        sent = set()
        for pdo in sorted(layout["pdos"], key=lambda one: one["direction"] == "receive"):
            key = (pdo["canId"], pdo["extended"])
            # A PDO that shares the CAN-ID of another one is partly left out, as the report says.
            if not pdo["enabled"] or not pdo["bytes"] or not pdo["canId"] or pdo["multiplexed"] or key in sent:
                continue
            sent.add(key)
            compared, wrong = compare("%s %s" % (os.path.basename(file), pdo["name"]), by_id.get(key), pdo)
            total += compared
            messages += 1
            failed = failed or bool(wrong)
            for line in wrong[:5]:
                print(line, file=sys.stderr)
        if len(by_id) < len(sent):
            failed = True
            print("%s: %d messages instead of %d" % (file, len(by_id), len(sent)), file=sys.stderr)
    print("%d values of %d messages decoded" % (total, messages))
    return 1 if failed or total == 0 else 0


TOOLS = sys.argv[1]
sys.exit(main(sys.argv[2:]))
