#!/usr/bin/env python3
"""Makes the catalogue of a language that shows what is not translated, or has too little room.

  pseudo_language.py CATALOGUE RESULT

Each text of the catalogue gets accents, 40 % more letters and brackets around it. What programs
replace, such as %1, stays as it is.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree

ACCENTS = str.maketrans("aceinouyACEINOUY", "áçéíñóúýÁÇÉÍÑÓÚÝ")
# Places of arguments, and what comes in front of a letter that is marked.
KEPT = re.compile(r"(%L?\d|%n|%p|&&|&)")


def pseudo(text):
    parts = KEPT.split(text)
    parts[::2] = [part.translate(ACCENTS) for part in parts[::2]]
    words = " ".join(["lóñg"] * max(1, round(len(text) * 0.4 / 5)))
    return f"«{''.join(parts)} {words}»"


def main():
    tree = ElementTree.parse(sys.argv[1])
    tree.getroot().set("language", "en")
    for message in tree.iter("message"):
        source = message.findtext("source")
        translation = message.find("translation")
        translation.clear()
        if message.get("numerus") == "yes":
            for _ in range(2):
                ElementTree.SubElement(translation, "numerusform").text = pseudo(source)
        else:
            translation.text = pseudo(source)
    tree.write(sys.argv[2], encoding="utf-8", xml_declaration=True)


main()
