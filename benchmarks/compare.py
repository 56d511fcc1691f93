#!/usr/bin/env python3
"""Times Drossbin beside what people would use instead, and prints one table at the end.

Programs run in turns, because a machine is never as quiet in one minute as in the next: what
disturbs one disturbs its neighbours in the same round. Everything happens in a world of its own,
with its own home and, where the system allows it, its own /var/log; it is gone afterwards.
"""

import argparse
import json
import os
import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.path.append(str(HERE.parent / "tests" / "journeys"))

import world as worlds  # noqa: E402  (the path has to be known first)

import answering  # noqa: E402
import calls  # noqa: E402
import deleting  # noqa: E402
import idling  # noqa: E402
import interacting  # noqa: E402
import measuring  # noqa: E402
import memory  # noqa: E402
import scanning  # noqa: E402
import starting  # noqa: E402
import table  # noqa: E402
from bench import Bench  # noqa: E402

CHAPTERS = (measuring, scanning, answering, calls, memory, deleting, starting, idling, interacting)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", type=pathlib.Path, help="the build folder")
    parser.add_argument("words", nargs="*", help="words that a case's name must hold")
    parser.add_argument("--quick", action="store_true", help="small trees, few rounds")
    return parser.parse_intermixed_args()


def run(bench):
    machine = table.machine(bench.scratch)
    cases = []
    for chapter in CHAPTERS:
        for case in chapter.cases(bench):
            cases.append(case)
            save(bench, machine, cases)  # after each: an hour is long enough to be interrupted
    print(table.markdown(cases))
    print(table.summary(cases, bench.quick))


def save(bench, machine, cases):
    results = {"machine": machine, "quick": bench.quick, "cases": cases}
    (bench.build / "results.json").write_text(json.dumps(results, indent=2, ensure_ascii=False))
    text = f"{table.machine_line(machine)}\n\n{table.markdown(cases)}\n"
    (bench.build / "results.md").write_text(text)


def main():
    options = arguments()
    world = worlds.inside()
    if world is None:
        script = str(pathlib.Path(__file__).resolve())
        sys.exit(worlds.run_inside(script, sys.argv[1:]))
    os.environ.clear()
    os.environ.update(world.environment())
    options.build = options.build.resolve()
    run(Bench(options, world))


if __name__ == "__main__":
    main()
