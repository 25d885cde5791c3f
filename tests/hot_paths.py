"""What one block's call does where no lane is special: it runs straight to its return, with no call, and nothing goes
through the stack.   hot_paths.py MODULE CATALOGUE"""
import json
import re
import subprocess
import sys

module, catalogue = sys.argv[1:]
# Computed lane by lane.
scalar = {"tgamma", "lgamma", "lgammar", "tgammaf", "lgammaf", "lgammarf"}
with open(catalogue) as file:
    one_block = {e["symbol"] for e in json.load(file)["exports"]
                 if e["width"] == (4 if e["precision"] == "float" else 2) and e["base"] not in scalar}

listing = subprocess.run(["objdump", "-d", "--no-show-raw-insn", module], capture_output=True, text=True, check=True).stdout
instructions = {}
name = None
for line in listing.splitlines():
    if start := re.fullmatch(r"[0-9a-f]+ <(.*)>:", line):
        name = start[1]
        instructions[name] = []
    elif name and (found := re.match(r" *[0-9a-f]+:\t(.*)", line)):
        instructions[name].append(found[1].split("#")[0].strip())

checked, wrong = 0, []
for symbol in one_block & instructions.keys():  # code of several names is listed under one
    checked += 1
    # Results of 128 bytes and second ones are stored, but where the caller says.
    for instruction in instructions[symbol]:
        if re.match(r"ret|jmp", instruction):
            break
        if re.match(r"call|v?mov\S* +%\w+,(-?0x[0-9a-f]+)?\(%r[sb]p", instruction):
            wrong.append(f"{symbol}: {instruction}")
assert checked > 300, f"only {checked} functions are about a block"
assert not wrong, "\n".join(sorted(wrong))
print(f"{checked} functions: no call, nothing through the stack")
