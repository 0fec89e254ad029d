#!/usr/bin/python3
"""Draws every picture of Kelvo into a directory (default: the one of this script).

    resources/draw_pictures.py [DIRECTORY]

Needs Debian's python3-cairo and python3-pil; the build does not: the pictures are committed. One motif throughout, a
memory chip with a pie chart for its die, and the wedges in the order and hues of the live chart: free green, inactive
blue, active yellow, wired red, counter-clockwise from twelve o'clock.
"""
import math
import pathlib
import sys

import cairo
from PIL import Image, ImageChops, ImageFilter

TURN = 2 * math.pi
TOP = -TURN / 4


def drawing(size, paint, oversample=1):
    """An RGBA picture of size x size that paint(context) fills in pixel units, averaged over oversample^2 samples."""
    samples = size * oversample
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, samples, samples)
    context = cairo.Context(surface)
    context.scale(oversample, oversample)
    paint(context)
    surface.flush()
    # Premultiplied ("BGRa") all the way through the averaging: transparent pixels must not bleed their colour.
    picture = Image.frombytes("RGBa", (samples, samples), bytes(surface.get_data()), "raw", "BGRa")
    if oversample > 1:
        picture = picture.resize((size, size), Image.BOX)
    return picture.convert("RGBA")


def scalable(path, size, *paints):
    """The same as an SVG file, the paints one over the other."""
    with cairo.SVGSurface(str(path), size, size) as surface:
        surface.set_document_unit(cairo.SVGUnit.PX)
        for paint in paints:
            paint(cairo.Context(surface))


def follow_panel(path):
    """Lets Plasma show a black SVG file in its panel's text colour: it replaces this style sheet."""
    text = path.read_text().replace("fill:rgb(0%,0%,0%)", "fill:currentColor")
    text = text.replace("<path ", '<path class="ColorScheme-Text" ')
    sheet = '<style type="text/css" id="current-color-scheme">.ColorScheme-Text { color:#000000; }</style>'
    path.write_text(text.replace("<g ", f"{sheet}\n<g ", 1))


def colour(text, alpha=1.0):
    """Red, green, blue and alpha from 0 to 1, for a colour like "#4cc35e"."""
    return (*(int(text[i : i + 2], 16) / 255 for i in (1, 3, 5)), alpha)


def rounded(context, x, y, width, height, radius):
    context.new_sub_path()
    context.arc(x + width - radius, y + radius, radius, TOP, 0)
    context.arc(x + width - radius, y + height - radius, radius, 0, TURN / 4)
    context.arc(x + radius, y + height - radius, radius, TURN / 4, TURN / 2)
    context.arc(x + radius, y + radius, radius, TURN / 2, 3 * TURN / 4)
    context.close_path()


def wedges(context, x, y, radius, shares):
    """Fills wedges counter-clockwise from the top: shares is a list of (part of the whole, pattern)."""
    start = TOP
    for part, source in shares:
        context.move_to(x, y)
        context.arc_negative(x, y, radius, start, start - part * TURN)
        context.close_path()
        context.set_source(source)
        context.fill()
        start -= part * TURN


def gradient(x0, y0, x1, y1, *stops):
    pattern = cairo.LinearGradient(x0, y0, x1, y1)
    for offset, rgba in stops:
        pattern.add_color_stop_rgba(offset, *rgba)
    return pattern


def symbol(context, wedge=3.6):
    """The 16-pixel glyph as black alone, which a desktop redraws in the colour of its texts.

    Legs lie on whole pixels, so nothing but the round parts is blurred. The wedge keeps clear of its surroundings.
    """
    context.set_source_rgba(0, 0, 0, 1)
    for leg in (3, 6, 9, 12):
        context.rectangle(leg, 0, 1, 2)
        context.rectangle(leg, 14, 1, 2)
        context.rectangle(0, leg, 2, 1)
        context.rectangle(14, leg, 2, 1)
    context.fill()
    context.set_fill_rule(cairo.FILL_RULE_EVEN_ODD)
    rounded(context, 2, 2, 12, 12, 1.5)
    context.new_sub_path()
    context.arc(8, 8, 4.7, 0, TURN)
    context.fill()
    context.move_to(8, 8)
    context.arc(8, 8, wedge, TOP, 0)
    context.close_path()
    context.fill()


def glyph():
    """The symbol on a light face, so that the dark glyph still reads on a dark panel, where a bare one would be gone."""

    def paint(context):
        context.set_source_rgba(1, 1, 1, 0.8)
        context.arc(8, 8, 5, 0, TURN)
        context.fill()
        symbol(context, wedge=4.7)

    return drawing(16, paint).convert("LA")


def inverse(picture):
    grey, alpha = picture.split()
    return Image.merge("LA", (ImageChops.invert(grey), alpha))


def pie_chart():
    """The menu-bar pie at 16 pixels, in the live chart's own pure colours and with its thin outline."""

    def paint(context):
        pure = [cairo.SolidPattern(*rgb) for rgb in ((0, 1, 0), (0, 0, 1), (1, 1, 0), (1, 0, 0))]
        wedges(context, 8, 8, 7.5, zip((0.34, 0.2, 0.28, 0.18), pure))
        context.set_source_rgba(0, 0, 0, 0.75)
        context.set_line_width(0.8)
        context.arc(8, 8, 7.3, 0, TURN)
        context.stroke()

    return drawing(16, paint, 8)


def application_icon(svg):
    """The chip in full colour at 96 pixels, light from above, with a soft shadow below; the same into an SVG file."""
    legs = (24, 40, 56, 72)

    def silhouette(context, grown=0):
        def part(x, y, width, height, radius):
            rounded(context, x - grown, y - grown, width + 2 * grown, height + 2 * grown, radius + grown)

        for leg in legs:
            part(leg - 3, 2, 6, 86, 2)
            part(5, leg - 6, 86, 6, 2)
        part(13, 10, 70, 70, 12)
        context.fill()

    def layered_shadow(context):
        # Where nothing can be blurred: ever smaller silhouettes, one over the other.
        context.translate(0, 4)
        context.set_source_rgba(0, 0, 0, 0.06)
        for grown in (3, 2.2, 1.4, 0.6, -0.2, -1, -1.8):
            silhouette(context, grown)

    def chip(context):
        metal = (0, colour("#d5d9df")), (0.35, colour("#f1f3f5")), (1, colour("#7d848f"))
        for leg in legs:
            for box, light in (
                ((leg - 3, 2, 6, 86, 2), gradient(leg - 3, 0, leg + 3, 0, *metal)),
                ((5, leg - 6, 86, 6, 2), gradient(0, leg - 6, 0, leg, *metal)),
            ):
                rounded(context, *box)
                context.set_source(light)
                context.fill_preserve()
                context.set_source_rgba(*colour("#59616d", 0.7))
                context.set_line_width(0.8)
                context.stroke()
        body = (0, colour("#5a6778")), (0.5, colour("#3b4654")), (1, colour("#252c36"))
        context.set_source(gradient(0, 10, 0, 80, *body))
        rounded(context, 13, 10, 70, 70, 12)
        context.fill_preserve()
        context.set_source_rgba(*colour("#181d25"))
        context.set_line_width(1)
        context.stroke()
        context.set_source(gradient(0, 11, 0, 40, (0, (1, 1, 1, 0.5)), (1, (1, 1, 1, 0))))
        rounded(context, 14, 11, 68, 68, 11)
        context.stroke()

    def die(context):
        x, y, radius = 48, 45, 27
        context.set_source(gradient(0, y - 31, 0, y + 31, (0, colour("#12161c")), (1, colour("#616d7d"))))
        context.arc(x, y, radius + 3.5, 0, TURN)
        context.fill()
        context.set_source_rgba(*colour("#f7f8fa"))
        context.arc(x, y, radius + 2, 0, TURN)
        context.fill()
        shades = (("#62d66a", "#2fa845"), ("#5b97f5", "#2a5fd0"), ("#ffdd66", "#f0b81c"), ("#f2736a", "#d63a33"))
        parts = (0.34, 0.2, 0.28, 0.18)
        pies = [gradient(0, y - radius, 0, y + radius, (0, colour(light)), (1, colour(deep))) for light, deep in shades]
        wedges(context, x, y, radius, zip(parts, pies))
        context.set_source_rgba(*colour("#f7f8fa"))
        context.set_line_width(1.6)
        angle = TOP
        for part in parts:
            context.move_to(x, y)
            context.line_to(x + (radius + 1) * math.cos(angle), y + (radius + 1) * math.sin(angle))
            angle -= part * TURN
        context.stroke()

    def paint(context):
        chip(context)
        die(context)

    scalable(svg, 96, layered_shadow, paint)
    nothing = Image.new("L", (96, 96), 0)
    shadow = nothing.copy()
    shadow.paste(drawing(96, silhouette, 4).getchannel("A"), (0, 4))
    shadow = shadow.filter(ImageFilter.GaussianBlur(2.5)).point(lambda alpha: alpha * 45 // 100)
    return Image.alpha_composite(Image.merge("RGBA", (nothing, nothing, nothing, shadow)), drawing(96, paint, 4))


def wait_indicator(path, ground, first, last, least):
    """Twelve spokes that fade from the grey level last to first, turning by one spoke per frame of 100 ms.

    GIF pixels are there or not. So an edge pixel is mixed with the grey of the ground on which the animation stands,
    and left out where the spoke covers less than least/255 of it: the less sure the ground, the more is left out.
    """
    levels = [first + (last - first) * (step / 11) ** 2.2 for step in range(12)]
    frames = []
    for frame in range(12):

        def paint(context, frame=frame):
            context.set_line_cap(cairo.LINE_CAP_ROUND)
            context.set_line_width(2.6)
            for spoke in range(12):
                level = levels[(spoke - frame - 1) % 12] / 255
                angle = TOP + spoke * TURN / 12
                context.set_source_rgb(level, level, level)
                context.move_to(16 + 7.6 * math.cos(angle), 16 + 7.6 * math.sin(angle))
                context.line_to(16 + 13.4 * math.cos(angle), 16 + 13.4 * math.sin(angle))
                context.stroke()

        spokes = drawing(32, paint, 8)
        matted = Image.alpha_composite(Image.new("RGBA", (32, 32), (ground,) * 3 + (255,)), spokes).convert("L")
        # 63 greys, and the last index for "nothing here".
        grey = matted.point(lambda value: round(value / 255 * 62))
        covered = spokes.getchannel("A").point(lambda alpha: 255 if alpha >= least else 0)
        pixels = Image.new("P", (32, 32), 63)
        pixels.putpalette([round(min(index, 62) * 255 / 62) for index in range(64) for _ in "rgb"])
        pixels.paste(Image.frombytes("P", (32, 32), grey.tobytes()), (0, 0), covered)
        frames.append(pixels)
    frames[0].save(
        path,
        save_all=True,
        append_images=frames[1:],
        duration=100,
        loop=0,
        transparency=63,
        disposal=2,
        optimize=False,
    )


def main():
    directory = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else __file__)
    directory = directory if directory.is_dir() else directory.parent
    glyph().save(directory / "app16.png", optimize=True)
    inverse(glyph()).save(directory / "app16_invert.png", optimize=True)
    pie_chart().save(directory / "piechart.png", optimize=True)
    application_icon(directory / "app.svg").save(directory / "app96.png", optimize=True)
    scalable(directory / "app_symbolic.svg", 16, symbol)
    follow_panel(directory / "app_symbolic.svg")
    # The classic window is white to #efefef. The dark one is half of whatever lies under it, black to mid-grey.
    wait_indicator(directory / "wait_indicator.gif", ground=0xF4, first=0xCA, last=0x38, least=24)
    wait_indicator(directory / "wait_indicator_dark.gif", ground=0x40, first=0x78, last=0xFF, least=80)


if __name__ == "__main__":
    main()
