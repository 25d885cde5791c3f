"""The proofs' modules, and a tracer that tampers with what tarn-trace says."""
import json
import os
import subprocess
import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).parents[2]
TRACE = os.environ["TARN_TRACE"]
sys.path.insert(0, str(ROOT / "proofs"))


@pytest.fixture
def tampered(tmp_path, monkeypatch):
    """Makes a kernel's trace one that change(trace) has changed, for this process and those that it starts."""
    def tamper(base, width, change):
        trace = json.loads(subprocess.run([TRACE, base, str(width)], capture_output=True, check=True).stdout)
        change(trace)
        (tmp_path / "trace.json").write_text(json.dumps(trace))
        (tmp_path / "tarn-trace").write_text(f"#!/bin/sh\nexec cat '{tmp_path}/trace.json'\n")
        (tmp_path / "tarn-trace").chmod(0o755)
        (tmp_path / "tarn-call").symlink_to(Path(TRACE).with_name("tarn-call"))
        monkeypatch.setenv("TARN_TRACE", str(tmp_path / "tarn-trace"))
        monkeypatch.setattr("proof.TRACE", str(tmp_path / "tarn-trace"))
    return tamper
