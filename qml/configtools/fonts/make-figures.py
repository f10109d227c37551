"""Makes the figure faces beside this file from Debian's fonts-inter: Inter with its tabular figures as the
default ones, cut down to Latin-1. Needed because Qt 6.4 cannot switch a font feature on. Run with python3
and python3-fonttools in this folder; the result is checked in.
"""
from fontTools.ttLib import TTFont
from fontTools import subset
for w in ("Regular","SemiBold"):
    f=TTFont(f"/usr/share/fonts/opentype/inter/Inter-{w}.otf")
    gsub=f["GSUB"].table
    m={}
    for fr in gsub.FeatureList.FeatureRecord:
        if fr.FeatureTag=="tnum":
            for li in fr.Feature.LookupListIndex:
                for st in gsub.LookupList.Lookup[li].SubTable:
                    st=getattr(st,"ExtSubTable",st)
                    if hasattr(st,"mapping"): m.update(st.mapping)
    h=f['hmtx']; c0=f.getBestCmap()
    print(w,{ch:h[c0[ord(ch)]][0] for ch in "0123456789.:-af"})
    for t in f["cmap"].tables:
        for k,v in list(t.cmap.items()):
            if chr(k) in "0123456789" and v in m: t.cmap[k]=m[v]
    c0=f.getBestCmap()
    print(w,{ch:h[c0[ord(ch)]][0] for ch in "0123456789.:-af"})
    o=subset.Options(); o.layout_features=["kern","ccmp","mark"]; o.name_IDs=["*"]; o.hinting=True; o.notdef_outline=True
    s=subset.Subsetter(o); s.populate(unicodes=list(range(0x20,0x7f))+list(range(0xa0,0x100))+[0x2013,0x2014,0x2026,0x00d7,0x2212])
    s.subset(f)
    for n in f["name"].names:
        t=n.toUnicode()
        if n.nameID in (1,16): n.string="Inter Figures"
        elif n.nameID in (3,4): n.string=f"Inter Figures {w}"
        elif n.nameID==6: n.string=f"InterFigures-{w}"
    if "CFF " in f:
        cff=f["CFF "].cff; cff.fontNames=[f"InterFigures-{w}"]; td=cff.topDictIndex[0]; td.FamilyName="Inter Figures"; td.FullName=f"Inter Figures {w}"
    f.save(f"inter-figures-{w.lower()}.otf")
