"""Draws figures as an SVG dot plot: a row for each workload on a logarithmic axis, a mark for each subject."""

import math
from html import escape

# What the chart shows of the workloads: enough of each group to see its shape.
GROUPS = {
    "Lists": ["build/8", "build/32", "build/1024", "copy/128", "nested_build/4x8"],
    "Finding": ["find_middle/32", "find_miss/32", "find_miss/128", "find_miss/1024"],
    "Bytes": [
        "encode/32", "encode/128", "decode/32", "decode/128", "nested_encode/4x8", "nested_decode/4x8",
        "read_in_place/32",
    ],
    "Two lists": ["merge/32_into_128", "remove/32_from_128", "equal_same_order/128", "equal_shuffled/128"],
    "Dictionary": ["name_to_number", "number_to_name"],
    "Text": ["render/string", "render/number", "render/ipv4", "render/ipv6"],
}  # fmt: skip

WIDTH, LEFT, RIGHT = 960, 244, 34
TOP, ROW, GAP, BOTTOM = 92, 20, 14, 44
LEGEND_COLUMNS = 4

# Colours told apart on white and on black, and by the colour-blind together with the shapes.
COLOURS = ["#0072b2", "#009e73", "#cc79a7", "#56b4e9", "#b8860b", "#8a63d2", "#7f7f7f", "#2aa198", "#a0522d", "#5f8dd3"]
SHAPES = ["circle", "square", "triangle", "diamond", "cross"]
HIGHLIGHT = "#e0301e"

STYLE = """
  .paper { fill: #ffffff; stroke: #d0d7de } .ink { fill: #1f2328 } .soft { fill: #59636e }
  .grid { stroke: #d0d7de; stroke-width: 1 } .span { stroke: #d0d7de; stroke-width: 3 }
  .limit { stroke: #1f2328; stroke-width: 2.5 }
  @media (prefers-color-scheme: dark) {
    .paper { fill: #0d1117; stroke: #3d444d } .ink { fill: #f0f6fc } .soft { fill: #9198a1 }
    .grid, .span { stroke: #3d444d } .limit { stroke: #f0f6fc }
  }
  text { font: 12px sans-serif } .group { font-weight: bold } .title { font: bold 15px sans-serif }
"""


def text(x, y, words, style="ink", anchor="start"):
    return f'<text x="{x:.1f}" y="{y:.1f}" class="{style}" text-anchor="{anchor}">{escape(words)}</text>'


def line(x1, y1, x2, y2, style):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" class="{style}"/>'


def polygon(points, colour):
    return f'<polygon points="{" ".join(f"{x:.1f},{y:.1f}" for x, y in points)}" fill="{colour}"/>'


def shape(kind, x, y, colour):
    if kind == "square":
        return f'<rect x="{x - 3.6:.1f}" y="{y - 3.6:.1f}" width="7.2" height="7.2" fill="{colour}"/>'
    if kind == "triangle":
        return polygon([(x - 4.6, y + 3.6), (x + 4.6, y + 3.6), (x, y - 4.4)], colour)
    if kind == "diamond":
        return polygon([(x - 4.8, y), (x, y - 4.8), (x + 4.8, y), (x, y + 4.8)], colour)
    if kind == "cross":
        arms = f"M{x - 3.6:.1f} {y - 3.6:.1f}l7.2 7.2m0 -7.2l-7.2 7.2"
        return f'<path d="{arms}" stroke="{colour}" stroke-width="2.2" fill="none"/>'
    return f'<circle cx="{x:.1f}" cy="{y:.1f}" r="4" fill="{colour}"/>'


class Chart:
    def __init__(self, figures, subjects, library, limit):
        self.figures, self.library, self.limit = figures, library, limit
        peers = [subject for subject in subjects if subject not in (library, limit)]
        self.looks = {peer: (SHAPES[i % len(SHAPES)], COLOURS[i % len(COLOURS)]) for i, peer in enumerate(peers)}
        self.groups = {
            group: [workload for workload in workloads if workload in figures] for group, workloads in GROUPS.items()
        }
        values = [v for workloads in self.groups.values() for w in workloads for v in figures[w].values()]
        self.low = math.floor(math.log10(min(values)))
        self.high = math.ceil(math.log10(max(values)))
        self.legend_height = math.ceil((len(peers) + 2) / LEGEND_COLUMNS) * 18

    def x(self, value):
        return LEFT + (math.log10(value) - self.low) / (self.high - self.low) * (WIDTH - LEFT - RIGHT)

    def mark(self, subject, x, y):
        if subject == self.limit:
            return line(x, y - 7, x, y + 7, "limit")
        if subject == self.library:
            return f'<circle cx="{x:.1f}" cy="{y:.1f}" r="6.2" fill="{HIGHLIGHT}"/>'
        kind, colour = self.looks[subject]
        return shape(kind, x, y, colour)

    def legend(self):
        for i, subject in enumerate([self.library, self.limit, *self.looks]):
            x = 24 + i % LEGEND_COLUMNS * (WIDTH - 48) / LEGEND_COLUMNS
            y = 62 + i // LEGEND_COLUMNS * 18
            yield self.mark(subject, x + 6, y)
            yield text(x + 18, y + 4, subject)

    def axis(self, top, bottom):
        for power in range(self.low, self.high + 1):
            x = self.x(10**power)
            unit, size = ("ns", 0) if power < 3 else ("µs", 3) if power < 6 else ("ms", 6)
            yield line(x, top, x, bottom, "grid")
            yield text(x, bottom + 18, f"{10 ** (power - size):g} {unit}", "soft", "middle")

    def row(self, workload, y):
        by_subject = self.figures[workload]
        yield text(LEFT - 14, y + 4, workload, "soft", "end")
        yield line(self.x(min(by_subject.values())), y, self.x(max(by_subject.values())), y, "span")
        for subject in [*self.looks, self.limit, self.library]:  # the library lies on top
            if subject in by_subject:
                yield self.mark(subject, self.x(by_subject[subject]), y)

    def draw(self, machine):
        top = TOP + self.legend_height - 18
        rows, y = [], top
        for group, workloads in self.groups.items():
            if not workloads:
                continue
            y += GAP
            rows.append(text(24, y + 4, group, "ink group"))
            for workload in workloads:
                rows += self.row(workload, y)
                y += ROW
        height = y + BOTTOM
        return [
            f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" width="{WIDTH}" height="{height}">',
            f"<style>{STYLE}</style>",
            f'<rect x="0.5" y="0.5" width="{WIDTH - 1}" height="{height - 1}" rx="6" class="paper"/>',
            text(24, 28, "Time for one operation, on a logarithmic scale; less is better", "ink title"),
            text(24, 45, machine, "soft"),
            *self.legend(),
            *self.axis(top, y),
            *rows,
            "</svg>",
            "",
        ]


def svg(figures, subjects, library, limit, machine):
    return "\n".join(Chart(figures, subjects, library, limit).draw(machine))
