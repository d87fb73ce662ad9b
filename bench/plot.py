"""Draws a plot with logarithmic axes as SVG."""

import math
from pathlib import Path
from xml.sax.saxutils import escape

Points = list[tuple[float, float]]
WIDTH, HEIGHT, LEFT, RIGHT, TOP, BOTTOM = 560, 360, 70, 40, 40, 50
COLOURS = ("#1f5fa8", "#c0562b", "#4b8b3b")


def ticks(low: float, high: float) -> list[float]:
    powers = range(math.floor(math.log10(low)), math.ceil(math.log10(high)) + 1)
    return [10.0**power for power in powers]


def draw(path: Path, title: str, across: str, up: str, lines: dict[str, Points]) -> None:
    """The dashed line shows linear growth from the first point of the first line."""
    first = next(iter(lines.values()))
    scale = first[-1][0] / first[0][0]
    lines = lines | {"linear": [first[0], (first[-1][0], first[0][1] * scale)]}
    xs, ys = ([point[i] for points in lines.values() for point in points] for i in (0, 1))
    x_ticks, y_ticks = ticks(min(xs), max(xs)), ticks(min(ys), max(ys))

    def place(value: float, marks: list[float], start: int, end: int) -> float:
        share = math.log10(value / marks[0]) / math.log10(marks[-1] / marks[0])
        return start + share * (end - start)

    def x_of(value: float) -> float:
        return place(value, x_ticks, LEFT, WIDTH - RIGHT)

    def y_of(value: float) -> float:
        return place(value, y_ticks, HEIGHT - BOTTOM, TOP)

    def text(x: float, y: float, words: str, more: str = "") -> str:
        return f'<text x="{x:.1f}" y="{y:.1f}" {more}>{escape(words)}</text>'

    svg = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" '
        'font-family="sans-serif" font-size="12">',
        f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>',
        text(WIDTH / 2, 20, title, 'text-anchor="middle" font-size="14"'),
        text(WIDTH / 2, HEIGHT - 12, across, 'text-anchor="middle"'),
        text(-HEIGHT / 2, 16, up, 'text-anchor="middle" transform="rotate(-90)"'),
    ]
    grid = 'stroke="#dddddd"'
    for value in x_ticks:
        x = x_of(value)
        svg.append(f'<path d="M{x:.1f} {TOP}V{HEIGHT - BOTTOM}" {grid}/>')
        svg.append(text(x, HEIGHT - BOTTOM + 16, f"{value:,.0f}", 'text-anchor="middle"'))
    for value in y_ticks:
        y = y_of(value)
        svg.append(f'<path d="M{LEFT} {y:.1f}H{WIDTH - RIGHT}" {grid}/>')
        svg.append(text(LEFT - 6, y + 4, f"{value:g}", 'text-anchor="end"'))
    for index, (name, points) in enumerate(lines.items()):
        dashed = name == "linear"
        colour = "#888888" if dashed else COLOURS[index]
        style = f'fill="none" stroke="{colour}"' + (' stroke-dasharray="4 4"' if dashed else "")
        track = "L".join(f"{x_of(x):.1f} {y_of(y):.1f}" for x, y in points)
        svg.append(f'<path d="M{track}" {style} stroke-width="2"/>')
        if not dashed:
            svg += [
                f'<circle cx="{x_of(x):.1f}" cy="{y_of(y):.1f}" r="3" fill="{colour}"/>'
                for x, y in points
            ]
        svg.append(text(LEFT + 12, TOP + 16 + 16 * index, name, f'fill="{colour}"'))
    path.write_text("\n".join(svg + ["</svg>", ""]), encoding="utf-8")
