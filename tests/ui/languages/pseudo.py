#!/usr/bin/env python3
"""Translates a catalogue into a language of no country: pseudo.py CATALOGUE PSEUDO-CATALOGUE

A text becomes longer by two fifths, stands in brackets, and has no letter that an English text has,
so that a text on screen tells by itself whether it was looked up."""

import sys
import xml.etree.ElementTree as ElementTree

PLAIN = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
STRANGE = "ÅßÇĐÉƑĜĤÎĴĶĻɱÑÖÞǪŘŠŦÛṼŴẊŸŽåƀçđéƒĝĥîĵķļɱñöþǫřšŧûṽŵẋÿž"
LETTERS = str.maketrans(PLAIN, STRANGE)
FILLER = "öñé ŧŵö "


def translated(text):
    missing = -(-len(text) * 2 // 5)
    filler = (FILLER * missing)[:missing].rstrip().ljust(missing, "~")
    return f"[{text.translate(LETTERS)}{filler}]"


def main():
    source, target = sys.argv[1:]
    catalogue = ElementTree.parse(source)
    for message in catalogue.iter("message"):
        translation = message.find("translation")
        translation.attrib.clear()
        translation.text = translated(message.findtext("source"))
    catalogue.write(target, encoding="utf-8", xml_declaration=True)


main()
