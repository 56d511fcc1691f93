"""Results, and the one table that shows them."""

import datetime
import os
import pathlib
import platform
import statistics
import subprocess

FIGURES = ("median", "minimum", "maximum")


def case(name, unit, values, goals, has_ratios=True):
    """`values` are lists by program; `goals` are by program too, and say which "ratio", "median"
    or "maximum" must not be exceeded. Ratios are those of medians to the first program's."""
    base = statistics.median(next(iter(values.values()))) if has_ratios else 0
    return {
        "name": name,
        "unit": unit,
        "programs": {
            program: {
                "median": statistics.median(runs),
                "minimum": min(runs),
                "maximum": max(runs),
                "runs": len(runs),
                "ratio": statistics.median(runs) / base if base > 0 else None,
                "goals": goals.get(program, {}),
            }
            for program, runs in values.items()
        },
    }


def is_reached(figures):
    return all(figures[key] is not None and figures[key] <= limit
               for key, limit in figures["goals"].items())


def markdown(cases):
    head = ["case", "program", *FIGURES, "ratio", "to reach", ""]
    lines = [head]
    for item in cases:
        for index, (program, figures) in enumerate(item["programs"].items()):
            name = item["name"] if index == 0 else ""
            lines.append([name, *_row(program, figures, item["unit"])])
    widths = [max(len(line[column]) for line in lines) for column in range(len(head))]
    lines.insert(1, ["-" * (width - 1) + (":" if _is_figure(column) else "-")
                     for column, width in enumerate(widths)])
    return "\n".join(_line(line, widths) for line in lines)


def _row(program, figures, unit):
    ratio = "" if figures["ratio"] is None else f"{figures['ratio']:.2f}"
    goals = ", ".join(f"{key} {limit:g}" for key, limit in figures["goals"].items())
    verdict = "" if not goals else "reached" if is_reached(figures) else "**missed**"
    return [program, *(f"{_number(figures[key])} {unit}" for key in FIGURES), ratio, goals, verdict]


def _number(value):
    digits = 0 if value >= 1000 else 1 if value >= 10 else 2
    return f"{value:,.{digits}f}"


def _line(cells, widths):
    padded = [cell.rjust(width) if _is_figure(column) else cell.ljust(width)
              for column, (cell, width) in enumerate(zip(cells, widths))]
    return f"| {' | '.join(padded)} |"


def _is_figure(column):
    return 2 <= column <= 5


def summary(cases, quick):
    if quick:
        return "\nA quick run: it works, and its figures say nothing."
    verdicts = {f"{item['name']}: {program}": is_reached(figures)
                for item in cases for program, figures in item["programs"].items()
                if figures["goals"]}
    missed = [name for name, reached in verdicts.items() if not reached]
    lines = [f"\n{len(verdicts) - len(missed)} of {len(verdicts)} goals reached."]
    return "\n".join(lines + [f"  missed: {name}" for name in missed])


def machine(folder):
    return {
        "date": datetime.date.today().isoformat(),
        "system": platform.platform(),
        "processor": _first_line("/proc/cpuinfo", "model name"),
        "cores": os.cpu_count(),
        "memory": _first_line("/proc/meminfo", "MemTotal"),
        "file system": subprocess.run(["stat", "-f", "-c", "%T", folder], capture_output=True,
                                      text=True, check=True).stdout.strip(),
        "load": os.getloadavg()[0],
    }


def machine_line(machine):
    return ("{date}: {processor}, {cores} cores, memory of {memory}, {file system}, {system}, "
            "load {load:.2f} at the start.").format(**machine)


def _first_line(path, key):
    lines = pathlib.Path(path).read_text().splitlines() if os.path.exists(path) else []
    return next((line.split(":", 1)[1].strip() for line in lines if line.startswith(key)), None)
