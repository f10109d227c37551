#!/usr/bin/python3
"""Creates the font files in this folder, which are under version control. Run it in this folder:

    ./make-fonts.py LUCIDE_TTF

It needs Debian's python3-fonttools and fonts-inter, and the file font/lucide.ttf of the npm package lucide-static
(version 1.62.0 was used). Run it again when Theme.qml uses an icon that is not in lucide.ttf.

- inter-figures-*.otf: Inter with tabular figures by default, for Latin-1 text, so that digits of a column align.
  This version of Qt cannot enable a font feature.
- lucide.ttf: only the icons of Theme.qml. The complete set takes longer to load than all other fonts.
"""
import pathlib
import re
import sys

from fontTools import subset
from fontTools.ttLib import TTFont

LATIN_1 = [*range(0x20, 0x7F), *range(0xA0, 0x100)]
DASHES_AND_SIGNS = [0x2013, 0x2014, 0x2026, 0x00D7, 0x2212]


def cut(font, unicodes, features):
    options = subset.Options()
    options.layout_features = features
    options.name_IDs = ["*"]
    options.hinting = True
    options.notdef_outline = True
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=unicodes)
    subsetter.subset(font)


def tabular_figures(font):
    """Glyph names of the proportional figures, mapped to their tabular figures."""
    table = font["GSUB"].table
    twins = {}
    for record in table.FeatureList.FeatureRecord:
        if record.FeatureTag != "tnum":
            continue
        for index in record.Feature.LookupListIndex:
            for subtable in table.LookupList.Lookup[index].SubTable:
                twins.update(getattr(getattr(subtable, "ExtSubTable", subtable), "mapping", {}))
    return twins


def rename(font, family, weight):
    """A changed font must not have the name of the original."""
    texts = {1: family, 16: family, 3: f"{family} {weight}", 4: f"{family} {weight}",
             6: f"{family} {weight}".replace(" ", "")}
    for name in font["name"].names:
        name.string = texts.get(name.nameID, name.toUnicode())
    compact = font["CFF "].cff
    compact.fontNames = [texts[6]]
    compact.topDictIndex[0].FamilyName = family
    compact.topDictIndex[0].FullName = texts[4]


def make_figures(weight):
    font = TTFont(f"/usr/share/fonts/opentype/inter/Inter-{weight}.otf")
    twins = tabular_figures(font)
    for table in font["cmap"].tables:
        for figure in map(ord, "0123456789"):
            if table.cmap.get(figure) in twins:
                table.cmap[figure] = twins[table.cmap[figure]]
    cut(font, LATIN_1 + DASHES_AND_SIGNS, ["kern", "ccmp", "mark"])
    rename(font, "Inter Figures", weight)
    font.save(f"inter-figures-{weight.lower()}.otf")


def set_bearings(font):
    """The original has bearing 0 for all icons, which draws narrow icons too far to the left."""
    for name, (advance, _) in font["hmtx"].metrics.items():
        font["hmtx"][name] = (advance, getattr(font["glyf"][name], "xMin", 0))


def make_icons(source):
    theme = pathlib.Path("../Theme.qml").read_text(encoding="utf-8")
    font = TTFont(source)
    cut(font, [int(code, 16) for code in re.findall(r"\\u([0-9a-f]{4})", theme)], [])
    set_bearings(font)
    font.save("lucide.ttf")


if len(sys.argv) != 2:
    sys.exit(__doc__)
make_figures("Regular")
make_figures("SemiBold")
make_icons(sys.argv[1])
