"""What Debian's Python libraries take for the program's work: a line "LIBRARY MS" for each.

pari.py leggi FILE
pari.py scrivi FILE TO     the items of that feed, as a feed of its own
"""

import sys
import time
from datetime import timezone
from email.utils import parsedate_to_datetime

import feedgenerator
import feedparser
from lxml import etree

lavoro, percorso = sys.argv[1:3]
nomi = ("title", "link", "description", "author", "pubDate", "guid")


def elementi():
    with open(percorso, "rb") as file:
        albero = etree.parse(file, etree.XMLParser(huge_tree=True))
    return [[voce.findtext(nome) for nome in nomi] for voce in albero.iter("item")]


def con_feedparser():
    with open(percorso, "rb") as file:
        return feedparser.parse(file.read()).entries


def scrivi(voci):
    feed = feedgenerator.Rss201rev2Feed(title="t", link="l", description="d")
    for titolo, link, descrizione, autore, data, guid in voci:
        feed.add_item(title=titolo, link=link, description=descrizione, author_email=autore,
                      pubdate=data, unique_id=guid)
    with open(sys.argv[3], "wb") as file:
        feed.write(file, "ISO-8859-1")
    return voci


def misura(nome, azione):
    inizio = time.perf_counter()
    fatti = len(azione())
    ms = (time.perf_counter() - inizio) * 1000
    if fatti != quanti:
        sys.exit(f"{nome}: {fatti} items")
    print(f"{nome} {ms:.1f}")


with open(percorso, "rb") as file:
    quanti = file.read().count(b"<item>")
if lavoro == "leggi":
    misura("lxml", elementi)
    misura("feedparser", con_feedparser)
else:
    voci = [v[:4] + [parsedate_to_datetime(v[4]).astimezone(timezone.utc), v[5]]
            for v in elementi()]
    misura("feedgenerator", lambda: scrivi(voci))
