#!/usr/bin/python3
"""Prints what a run of the benchmarks says: the bars and whether they are met, then every figure beside its peers.

usage: report.py FOLDER    holds *.json of Google Benchmark, and *.txt with lines "name value ..." of the others
"""

import json
import re
import sys
from collections import defaultdict
from pathlib import Path
from statistics import median

UNITS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}  # in nanoseconds

# What is measured, what it is compared with (another figure, or a number in the figure's own unit), and how often that it may be.
BARS = [
    ("load/C/vexa", "load/C/qscintilla", 1),
    ("load/C/vexa", "load/C/lines", 2),
    ("load/C/vexa_kept", "load/C/vexa", 1.1),
    ("load_warm/C/vexa_kept", "load_warm/C/vexa", 1.1),
    ("type_painted/1000000/vexa", 16e6, 1),
    ("page_painted/3000000_lines/vexa", 16e6, 1),
    ("end_painted/3000000_lines/vexa", 16e6, 1),
    ("enter_painted/3000000_lines/vexa", 16e6, 1),
    ("paint/long_line/type_at_start/vexa/percentile_95", 16, 1),
    ("paint/long_line/type_at_end/vexa/percentile_95", 16, 1),
    ("paint/many_lines/page_down/vexa/percentile_95", 16, 1),
    ("paint/many_lines/page_up/vexa/percentile_95", 16, 1),
    ("paint/many_lines/type_at_end/vexa/percentile_95", 16, 1),
    ("paint/hits/end/100000/median", "paint/hits/end/1000/median", 1.5),
    ("paint/hits/page_up/100000/median", "paint/hits/page_up/1000/median", 1.5),
    ("paint/hits/open_first/100000/median", "paint/hits/open_first/10/median", 1.5),
    ("paint/hits/open_last/100000/median", "paint/hits/open_last/10/median", 1.5),
    ("load/WIDE/vexa", "load/WIDE/qscintilla", 1),
    ("load/WIDE/vexa", "load/WIDE/lines", 2),
    ("load_warm/C/vexa", "load_warm/C/lines", 2),
    ("load_warm/WIDE/vexa", "load_warm/WIDE/lines", 2),
    # The editor's writes are on the disk when they return, so the write beside them is brought there too. For an
    # existing file there are a safety copy and its way to the disk besides.
    ("write_new/C/vexa", "write_new/C/one_write_synced", 1.5),
    ("write_new/WIDE/vexa", "write_new/WIDE/one_write_synced", 1.5),
    ("write_new/C/vexa", "write_new/C/lines_buffered_synced", 1.1),
    ("write_new/WIDE/vexa", "write_new/WIDE/lines_buffered_synced", 1.1),
    ("write_existing/C/vexa", "write_new/C/one_write_synced", 3),
    ("write_existing/WIDE/vexa", "write_new/WIDE/one_write_synced", 3),
    ("line_in_and_out/C/vexa", "line_in_and_out/C/memmove", 1.5),
    ("line_in_and_out/C/vexa_keys", "line_in_and_out/C/memmove", 1.5),
    ("type/C/vexa", "type/1_line/vexa", 1.2),
    ("undo_redo/100000/vexa", 100, 1),
    ("undo_redo/100000/vexa", "undo_redo/1000/vexa", 1.5),
    ("lines_at_top/C/vexa", 15000, 1),
    ("startup/c.txt/vexa", "startup/c.txt/notepad", 1.5),
    ("startup/small.txt/vexa", "startup/small.txt/notepad", 1.5),
    ("paint/key/vexa/median", "paint/key/notepad/median", 1),
    ("paint/key/vexa/percentile_95", "paint/key/notepad/percentile_95", 1),
    ("paint/scroll_line/vexa/longest", 16, 1),
    ("paint/comment_opened/vexa", 16, 1),
    ("replace_all/C/vexa", "replace_all/C/vim", 0.25),
    ("replace_all/C/vexa", "replace_all/C/emacs", 0.25),
    ("ns_hit/replace_all/C/vexa", 500, 1),
    ("ns_hit/undo_replace_all/C/vexa", 300, 1),
    ("tokens/C/vexa", "tokens/C/scintilla", 1),
    ("comment_on_top_painted/C/vexa", 16e6, 1),
    ("scroll_line/C/vexa", 16e6, 1),
    ("load_output/vexa", "load_output/read_and_cut", 3),
    ("classify/vexa", "classify/engine", 1.5),
    ("next_error/vexa", 100e6, 1),
    ("bytes_line/load_output/vexa", 16, 1),
    ("help_index/4400_keywords/vexa", 10e6, 1),
    ("help_index/6000_keywords_3_levels/vexa", 10e6, 1),
    ("help_lookup/100_indexes/vexa", 30e6, 1),
    ("recovery/after_pause/windows/percentile_99.9", 2e6, 1),
    ("recovery/while_typing/windows/percentile_99.9", 2e6, 1),
    ("recovery/forgetting/windows/longest", 2e6, 1),
    ("files/plain/native", "files/plain/grep", 1.5),
    ("files/regexp/native", "files/regexp/grep", 2),
    ("files/plain/windows", "files/read/windows", 1.5),
    ("files/regexp/windows", "files/read/windows", 2),
    ("files/plain_first_line/native", 50e6, 1),
    ("files/plain_first_line/windows", 50e6, 1),
    # A search is cancelled between two parts.
    ("files/plain_longest_part/native", 50e6, 1),
    ("files/plain_longest_part/windows", 50e6, 1),
    ("files/regexp_longest_part/windows", 50e6, 1),
]

# The same for all the work whose names begin alike: the start of the names, what is measured, the peers of which the best
# counts, or a number, and how often that it may be. The work that comes out worst is printed.
GROUP_BARS = [
    ("kept/", "vexa", ["pcre2"], 1),
    ("kept/", "vexa", ["pcre2_jit"], 2),
    ("each/", "vexa_matcher", ["pcre2"], 0.5),
    ("plain/", "vexa", ["memmem", "strstr", "string_view"], 1.3),
    ("plain/", "vexa", ["strcasestr"], 0.5),
    ("bad/", "vexa", ["pcre2"], 0.01),
    ("not_there/", "vexa", ["engine"], 2),
    ("cut_and_paste_1000_lines/", "vexa", 10e6, 1),
    ("product/", "windows", ["native"], 1.3),
]


def figure_name(name):
    """The name with what is measured last: "undo_redo/1000/vexa" is "undo_redo/1000/vexa"."""
    place, _, last = name.rpartition("/")
    if last.isdigit():
        place, _, subject = place.rpartition("/")
        return f"{place}/{last}/{subject}"
    return name


def read_figures(folder):
    """Name to nanoseconds (of an item, where a benchmark counts items), bytes, or what the file has. Work that waits for
    the disk has its time by the clock, and all else that of the processor, in which other programs do not count."""
    figures = {}
    for path in sorted(folder.glob("*.json")):
        for run in json.loads(path.read_text())["benchmarks"]:
            if run.get("run_type") == "aggregate" or run.get("error_occurred"):
                continue
            timed = re.sub(r"/iterations:\d+", "", run["name"])
            clocked = timed.removesuffix("/real_time").removesuffix("/manual_time")
            name = figure_name(clocked)
            if "items_per_second" in run:
                figures[name] = 1e9 / run["items_per_second"]
            else:
                figures[name] = run["cpu_time" if clocked == timed else "real_time"] * UNITS[run["time_unit"]]
            for counter in ("bytes_step", "bytes_line", "ns_hit"):
                if counter in run:
                    figures[f"{counter}/{name}"] = run[counter]
    runs = defaultdict(list)
    for path in sorted(folder.glob("*.txt")):
        for line in path.read_text().splitlines():
            name, value, *_ = line.split()
            runs[name].append(float(value))
    return figures | {name: median(values) for name, values in runs.items()}


def worst_of_group(figures, start, subject, peer):
    """The highest ratio among the work whose names start so and that has such a peer, and that work's name."""
    ratios = []
    for name, value in figures.items():
        place, _, last = name.rpartition("/")
        if last != subject or not name.startswith(start):
            continue
        bases = [figures[f"{place}/{p}"] for p in peer if f"{place}/{p}" in figures] if isinstance(peer, list) else [peer]
        if bases:
            ratios.append((value / min(bases), place))
    return max(ratios, default=(None, start.rstrip("/")))


def print_bar(text, ratio, most):
    if ratio is None:
        print(f"{text:60} {'-':>8} {most:>8} not measured")
    else:
        print(f"{text:60} {ratio:8.2f} {most:8} {'' if ratio <= most else 'MISSED'}")


def print_bars(figures):
    print(f"{'bar':60} {'ratio':>8} {'at most':>8}")
    for name, peer, most in BARS:
        base = peer if isinstance(peer, (int, float)) else figures.get(peer)
        is_measured = name in figures and base is not None
        print_bar(f"{name} : {peer}", figures[name] / base if is_measured else None, most)
    for start, subject, peer, most in GROUP_BARS:
        ratio, place = worst_of_group(figures, start, subject, peer)
        peers = ", ".join(peer) if isinstance(peer, list) else peer
        print_bar(f"{place}/{subject} : {peers}", ratio, most)


def print_peers(figures):
    """Every piece of work with a figure of the editor, and how often that each peer takes."""
    work = defaultdict(dict)
    for name, value in figures.items():
        place, _, subject = name.rpartition("/")
        work[place][subject] = value
    print(f"\n{'work':44} {'figure':>12}   peers, as multiples of it")
    for place, subjects in work.items():
        own = "vexa" if "vexa" in subjects else None
        if own is None:
            for subject, value in subjects.items():
                print(f"{place + '/' + subject:44} {value:12.1f}")
            continue
        peers = "  ".join(f"{s} {v / subjects[own]:.2f}" for s, v in subjects.items() if s != own)
        print(f"{place:44} {subjects[own]:12.1f}   {peers}")


def main():
    figures = read_figures(Path(sys.argv[1]))
    print_bars(figures)
    print_peers(figures)


if __name__ == "__main__":
    main()
