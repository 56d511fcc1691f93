"""What is too short to time as a program of its own, from Google Benchmark."""

import json
import subprocess

import table

ROUNDS = 9
FILES = (10, 50, 500, 2000)
PLAIN, OURS = "walkFolderPlainly", "measureFolder"


def cases(bench):
    wanted = {files: name for files in FILES if bench.wants(name := f"call: a folder of {files:,}")}
    values = _timed(bench) if wanted else {}
    for files, name in wanted.items():
        programs = {"plain walk": values[PLAIN, files], "drossbin": values[OURS, files]}
        yield table.case(name, "µs", programs, {"drossbin": {"ratio": 1.1}})


def _timed(bench):
    """Microseconds of each repetition, by function and number of files."""
    output = bench.build / "calls.json"
    subprocess.run(
        [bench.tools / "benchmark_calls", "--benchmark_enable_random_interleaving=true",
         f"--benchmark_repetitions={bench.rounds(ROUNDS)}", "--benchmark_min_time=0.05",
         f"--benchmark_out={output}", "--benchmark_out_format=json"],
        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    values = {}
    for row in json.loads(output.read_text())["benchmarks"]:
        if row["run_type"] == "iteration":
            function, files, *_ = row["run_name"].split("/")
            values.setdefault((function, int(files)), []).append(row["real_time"] / 1000)
    return values
