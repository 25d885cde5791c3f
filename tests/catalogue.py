#!/usr/bin/env python3
"""The catalogue against its schema, against the module, and against itself.
   catalogue.py exports.json exports.schema.json MODULE"""
import json
import re
import subprocess
import sys

try:
    import jsonschema
except ImportError:
    print("skipped: python3-jsonschema is missing")
    sys.exit(77)

catalogue_file, schema_file, module = sys.argv[1:]
catalogue, schema = json.load(open(catalogue_file)), json.load(open(schema_file))
failures = 0


def expect(holds, what):
    global failures
    if not holds:
        failures += 1
        print("FAILED", what)


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()


jsonschema.Draft202012Validator.check_schema(schema)
for error in list(jsonschema.Draft202012Validator(schema).iter_errors(catalogue))[:10]:
    expect(False, f"{list(error.path)}: {error.message}")

exports = catalogue["exports"]
symbols = [e["symbol"] for e in exports]
present = {line.split()[-1] for line in output("nm", "-D", "--defined-only", module)}
expect(len(symbols) == len(set(symbols)), "every symbol once")
for missing in present ^ set(symbols):
    expect(False, f"{missing} is in one of the catalogue and the module")

# Exports that are one body have several names at one address.
code, address_of = {}, {line.split()[-1]: line.split()[0] for line in output("nm", module) if " T " in line or " t " in line}
for line in output("objdump", "-d", "--no-show-raw-insn", module):
    if found := re.match(r"^([0-9a-f]+) <(.*)>:$", line):
        body = code.setdefault(found[1], [])
    elif line.startswith(" "):
        body.append(line.split("\t")[-1])

overloads = set()
for e in exports:
    name = e["symbol"]
    expect(name == f"__ocl_tarn_k1_{e['base']}{e['width']}" + ("" if e["variant"] == "full" else "_" + e["variant"]), f"{name}: its parts")
    for platform in ("system_v", "windows"):
        expect(len(e[platform]["arguments"]) == len(e["arguments"]), f"{name}: a place for every argument")
        expect((e[platform]["second"] is not None) == (e["second_is"] == "written"), f"{name}: a place for a second result's pointer")
    if e["error"] and e["error"]["at"]:
        expect([2 + 2 * (8 if a["lane"] in ("double", "long", "ulong") else 4) for a in e["arguments"]] == [len(p) for p in e["error"]["at"]],
               f"{name}: a pattern for every argument")
    if e["variant"] != "native" and e["opencl_bound"] and e["error"]:
        expect((e["error"]["ulp"] > e["opencl_bound"]) == e["exceeds_opencl_bound"], f"{name}: {e['error']['ulp']} of {e['opencl_bound']} ulp")
    for variant in e["vector_function_abi"]:
        _, lanes, parameters, target = re.match(r"(_ZGV_LLVM_N)(\d+)(v+)_.*\((.*)\)$", variant).groups()
        expect((int(lanes), len(parameters), target) == (e["width"], len(e["arguments"]), name), f"{name}: {variant}")
    if e["opencl"]:
        overload = (e["opencl"], *(f"{a['lane']}{a['lanes']}" for a in e["arguments"]))
        expect(overload not in overloads, f"{name}: a second function for {overload}")
        overloads.add(overload)
    # A result by reference is returned in rax, which comes from rdi; where nothing travels in rdi, nothing reads it first.
    body = code[address_of[name]]
    travels = e["system_v"]
    kept = any(re.match(r"mov\s+%rdi,", line) for line in body)
    if travels["result"]["by_reference"]:
        expect(kept, f"{name}: its result by reference")
    elif not travels["second"] and all(a["in"] == "xmm" for a in travels["arguments"]):
        expect(not kept, f"{name}: its result in registers")
    # Vectors on the stack are read there.
    if any(a["in"] == "stack" for a in e["system_v"]["arguments"]):
        expect(any(re.search(r"\(%r[sb]p", line) for line in body), f"{name}: arguments on the stack")

print(f"{len(exports)} exports, {failures} failures")
sys.exit(failures != 0)
