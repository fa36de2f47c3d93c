#!/usr/bin/env python3
"""report.py RESULTS.json [CHART.svg]: the ratios of a benchmark run as Markdown tables, and as a bar chart.

report.py --analysis RESULTS.json: the ratios of the benchmarks of the analysis, and their rates."""

import json
import sys

DOCUMENTS = ["small", "typical", "wide", "arrays"]
STYLES = ["lvdata", "pugixml", "plain"]
OPERATIONS = ["parse", "print"]
FACTORS = [2, 4, 8, 16]
FOURFOLD = [
    ("parse", "unknown children", 1000, 4000),
    ("parse", "rows", 25000, 100000),
    ("print", "rows", 25000, 100000),
]


def least_times(results):
    """The least time of each benchmark over its repetitions, in nanoseconds."""
    scale = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    times = {}
    for run in results["benchmarks"]:
        if run["run_type"] == "iteration":
            time = run["real_time"] * scale[run["time_unit"]]
            times[run["run_name"]] = min(time, times.get(run["run_name"], time))
    return times


def ratio(times, name, reference):
    return times[name] / times[reference] if name in times and reference in times else None


def row(title, cells):
    texts = ["-" if cell is None else f"{cell:.2f}" for cell in cells]
    return f"| {title} | " + " | ".join(texts) + " |"


def ratio_rows(times):
    """Title and one ratio for each document, style by style."""
    for style in STYLES:
        for operation in OPERATIONS:
            ratios = [
                ratio(times, f"{operation}/{style}/{document}", f"{operation}/bare/{document}")
                for document in DOCUMENTS
            ]
            if any(cell is not None for cell in ratios):
                yield f"{operation}, {style}", ratios


def growth_rows(times):
    for operation in OPERATIONS:
        name = f"{operation}/lvdata/typical"
        yield f"{operation}, typical", [ratio(times, f"{name} x{factor}", name) for factor in FACTORS]


def further_rows(times):
    """Title and one figure each."""
    for operation, what, small, large in FOURFOLD:
        name = f"{operation}/lvdata/{what} x"
        yield f"{operation}, {large:,} {what} to {small:,}", [ratio(times, f"{name}{large}", f"{name}{small}")]
    # The time of two threads is that of one round trip by each, shared out.
    one, two = (f"round trip threads/lvdata/typical/real_time/threads:{count}" for count in (1, 2))
    yield "round trips of two threads to those of one", [ratio(times, one, two)]


def table(title, columns, rows):
    yield f"| {title} | " + " | ".join(columns) + " |"
    yield "|---|" + "--:|" * len(columns)
    yield from (row(name, cells) for name, cells in rows)
    yield ""


def tables(times):
    yield from table("Ratio to the XML library alone", DOCUMENTS, ratio_rows(times))
    yield from table("Cost of so many times the document", [str(factor) for factor in FACTORS], growth_rows(times))
    yield from table("More of one thing", ["ratio"], further_rows(times))


ANALYSIS_DOCUMENTS = ["studio", "one mode", *DOCUMENTS]
ANALYSIS_OPERATIONS = ["check", "JSON line", "diff", "from JSON", "figures", "pictures", "report"]
ROWS = ("rows x25000", "rows x100000")


def analysis_rows(times):
    for operation in ANALYSIS_OPERATIONS:
        yield operation, [ratio(times, f"{operation}/{name}", f"read/{name}") for name in ANALYSIS_DOCUMENTS]


def growth_of_analysis(times):
    for operation in ["read", *ANALYSIS_OPERATIONS]:
        yield operation, [ratio(times, f"{operation}/{ROWS[1]}", f"{operation}/{ROWS[0]}")]


def rate_rows(results):
    """The greatest rate of each, in megabytes a second."""
    rates = {}
    for run in results["benchmarks"]:
        if run["run_type"] == "iteration":
            name = run["run_name"]
            rates[name] = max(run["bytes_per_second"] / 1e6, rates.get(name, 0))
    for operation in ["read", *ANALYSIS_OPERATIONS]:
        yield operation, [rates.get(f"{operation}/{name}") for name in ANALYSIS_DOCUMENTS]


def analysis_tables(results, times):
    yield from table("Ratio to reading", ANALYSIS_DOCUMENTS, analysis_rows(times))
    yield from table("MB/s", ANALYSIS_DOCUMENTS, rate_rows(results))
    yield from table("Cost of 100,000 rows to 25,000", ["ratio"], growth_of_analysis(times))


#: Colours for light pages and for dark ones. The chart has a background of its own, so it is legible on any page.
CHART_STYLE = """<style>
svg{--paper:#ffffff;--ink:#1f2328;--lvdata:#00795a;--pugixml:#0072b2;--plain:#946200}
@media screen and (prefers-color-scheme:dark){
svg{--paper:#1b1e23;--ink:#e6e8eb;--lvdata:#2fc79a;--pugixml:#56b4e9;--plain:#e69f00}
}
.paper{fill:#ffffff;fill:var(--paper)}
text{fill:#1f2328;fill:var(--ink)}
.lvdata{fill:#00795a;fill:var(--lvdata)}
.pugixml{fill:#0072b2;fill:var(--pugixml)}
.plain{fill:#946200;fill:var(--plain)}
.one{stroke:#1f2328;stroke:var(--ink);stroke-dasharray:3 3}
</style>
<rect class="paper" width="100%" height="100%"/>"""


CHART_LEFT, CHART_UNIT, CHART_WIDEST = 136, 30, 300


def bar(top, value, style):
    """One that is too long is cut: a gap shows that. The numbers leave the line at 1 free."""
    length = min(value * CHART_UNIT, CHART_WIDEST)
    end = CHART_LEFT + length
    is_cut = value * CHART_UNIT > CHART_WIDEST
    gap = f'<path class="paper" d="M{end - 12:.1f},{top + 15}l4,-16h4l-4,16z"/>' if is_cut else ""
    return (
        f'<rect class="{style}" x="{CHART_LEFT}" y="{top}" width="{length:.1f}" height="14"/>{gap}'
        f'<text x="{max(end, CHART_LEFT + CHART_UNIT) + 6:.1f}" y="{top + 11}">{value:.2f}</text>'
    )


def chart(rows):
    """Horizontal bars, one for each ratio, and a line at 1."""
    top = 30
    parts = []
    for title, ratios in rows:
        for document, value in zip(DOCUMENTS, ratios):
            if value is None:
                continue
            style = title.split(", ")[1]
            parts.append(f'<text x="4" y="{top + 11}">{title}, {document}</text>')
            parts.append(bar(top, value, style))
            top += 18
    one = CHART_LEFT + CHART_UNIT
    parts.append(f'<path class="one" d="M{one},26V{top}"/>')
    heading = '<text x="4" y="18" font-weight="bold">Time as a multiple of the XML library alone, the line at 1</text>'
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 480 {top + 8}" width="640" '
        f'font-family="sans-serif" font-size="11">\n{CHART_STYLE}\n{heading}\n' + "\n".join(parts) + "\n</svg>\n"
    )


def read_results(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def main():
    if sys.argv[1] == "--analysis":
        results = read_results(sys.argv[2])
        print("\n".join(analysis_tables(results, least_times(results))))
        return
    times = least_times(read_results(sys.argv[1]))
    print("\n".join(tables(times)))
    if len(sys.argv) > 2:
        with open(sys.argv[2], "w", encoding="utf-8") as file:
            file.write(chart(ratio_rows(times)))


if __name__ == "__main__":
    main()
