#!/usr/bin/env python3
"""Draws the program's pictures into res/. What it writes is committed: no build runs it.

Needs ImageMagick's `convert` and, for the logo's lettering, the font Liberation Serif. Every
picture is given in units of a small grid; edges are snapped to whole pixels of the size that is
drawn, so that the small sizes stay sharp.
"""
import math
import pathlib
import struct
import subprocess

RES = pathlib.Path(__file__).resolve().parent.parent
SOPRA = 8  # samples per pixel and side

NOTTE = '#1b3f5c'
MARE = '#2f7397'
CARTA = '#fffdf6'
OMBRA = '#d9e4ea'
RIGA = '#7f9dae'
AMBRA = '#f4a93a'
RAME = '#b8690f'
SABBIA = '#ffd88a'


class Tela:
    """A square picture of `lato` pixels, drawn in a grid of `unita` units."""

    def __init__(self, lato, unita):
        self.lato, self.k, self.comandi = lato, lato / unita, []

    def px(self, valore):
        return math.floor(valore * self.k + 0.5)

    def _riempi(self, colore):
        self.comandi.append(f"stroke none fill '{colore}'")

    def poligono(self, punti, colore, scatto=True):
        # ImageMagick counts from the middle of a sample, we from its edge: hence the half.
        posto = self.px if scatto else (lambda v: v * self.k)
        self._riempi(colore)
        self.comandi.append('polygon ' + ' '.join(
            f'{posto(x) * SOPRA - 0.5:.2f},{posto(y) * SOPRA - 0.5:.2f}' for x, y in punti))

    def rettangolo(self, x0, y0, x1, y1, colore):
        self.poligono([(x0, y0), (x1, y0), (x1, y1), (x0, y1)], colore)

    def arrotondato(self, x0, y0, x1, y1, raggio, colore):
        a, b, c, d = (self.px(v) * SOPRA for v in (x0, y0, x1, y1))
        r = raggio * self.k * SOPRA
        self._riempi(colore)
        # roundrectangle takes the last sample as part of the shape.
        self.comandi.append(f'roundrectangle {a},{b} {c - 1},{d - 1} {r:.2f},{r:.2f}')

    def disco(self, x, y, raggio, colore):
        x, y, r = (v * self.k * SOPRA for v in (x, y, raggio))
        self._riempi(colore)
        self.comandi.append(f'circle {x:.2f},{y:.2f} {x + r:.2f},{y:.2f}')

    def tratto(self, punti, spessore, colore):
        """An open line, never thinner than a pixel."""
        largo = max(1.0, spessore * self.k) * SOPRA
        self.comandi.append(
            f"fill none stroke '{colore}' stroke-width {largo:.2f} "
            'stroke-linejoin round stroke-linecap round polyline ' + ' '.join(
                f'{x * self.k * SOPRA:.2f},{y * self.k * SOPRA:.2f}' for x, y in punti))

    def stella(self, x, y, raggio, colore):
        """The mark of the program: a star of four long points."""
        punti = []
        for i in range(8):
            r = raggio if i % 2 == 0 else raggio * 0.36
            angolo = math.pi / 4 * i
            punti.append((x + r * math.sin(angolo), y - r * math.cos(angolo)))
        self.poligono(punti, colore, scatto=False)

    def disegno(self):
        grande = self.lato * SOPRA
        return ['-size', f'{grande}x{grande}', 'xc:none', '+antialias', '-draw', ' '.join(self.comandi),
                '-filter', 'Box', '-resize', f'{self.lato}x{self.lato}', '-depth', '8']

    def rgba(self):
        dati = converti(self.disegno() + ['rgba:-'])
        assert len(dati) == self.lato * self.lato * 4
        return dati

    def png(self):
        return converti(self.disegno() + ['-strip', '-define', 'png:compression-level=9',
                                          '-define', 'png:exclude-chunks=date,time', 'png32:-'])


def converti(argomenti):
    return subprocess.run(['convert'] + argomenti, check=True, capture_output=True).stdout


# ---------------------------------------------------------------------------------- the drawings

def icona(lato):
    """A sheet with the rows of a feed, on a tile of night blue; the newest row carries the star."""
    t = Tela(lato, 16)
    t.arrotondato(0, 0, 16, 16, 3, NOTTE)
    if lato >= 32:
        t.arrotondato(0, 8, 16, 16, 3, MARE)
        t.rettangolo(0, 8, 16, 12, MARE)
    t.rettangolo(3, 2, 12, 14, CARTA)
    for i, fine in enumerate((8, 10, 9)):
        y = 4 + 3 * i
        punto = 1 if lato < 32 else 1.5
        t.rettangolo(4, y, 4 + punto, y + punto, AMBRA)
        t.rettangolo(6, y, fine + 1, y + 1, RIGA)
        if lato >= 48:
            t.rettangolo(6, y + 1.33, fine - 0.5, y + 1.66, OMBRA)
    posto = 11.5 if lato < 32 else 11.25
    t.stella(posto, posto, 4.6, NOTTE)
    t.stella(posto, posto, 3.9, AMBRA)
    if lato >= 32:
        t.stella(posto, posto, 1.8, SABBIA)
    return t


def foglio(t, x0, y0, x1, y1, piega):
    """A sheet whose upper right corner is folded; its outline is one pixel or two."""
    bordo = max(1, round(t.k * 0.75)) / t.k
    t.poligono([(x0, y0), (x1 - piega, y0), (x1, y0 + piega), (x1, y1), (x0, y1)], NOTTE)
    t.poligono([(x0 + bordo, y0 + bordo), (x1 - piega, y0 + bordo), (x1 - bordo, y0 + piega),
                (x1 - bordo, y1 - bordo), (x0 + bordo, y1 - bordo)], CARTA)
    t.poligono([(x1 - piega, y0), (x1, y0 + piega), (x1 - piega, y0 + piega)], NOTTE)


def nuovo(lato):
    t = Tela(lato, 16)
    foglio(t, 2, 1, 12, 15, 4)
    for y in (6, 9):
        t.rettangolo(4, y, 9, y + 1, RIGA)
    t.stella(11.5, 11.5, 4.4, RAME)
    t.stella(11.5, 11.5, 3.6, AMBRA)
    return t


def apri(lato):
    t = Tela(lato, 16)
    b = max(1, round(t.k * 0.75)) / t.k
    t.poligono([(1, 3), (6, 3), (8, 5), (14, 5), (14, 14), (1, 14)], RAME)
    t.poligono([(1 + b, 3 + b), (6, 3 + b), (8, 5 + b), (14 - b, 5 + b), (14 - b, 14 - b),
                (1 + b, 14 - b)], AMBRA)
    t.poligono([(4, 7), (16, 7), (13, 14), (1, 14)], RAME, scatto=False)
    t.poligono([(4.4 + b / 2, 7 + b), (15.9 - b * 1.3, 7 + b), (13 - b * 0.8, 14 - b),
                (1 + b * 1.4, 14 - b)], SABBIA, scatto=False)
    return t


def salva(lato):
    t = Tela(lato, 16)
    b = max(1, round(t.k * 0.75)) / t.k
    t.poligono([(1, 1), (13, 1), (15, 3), (15, 15), (1, 15)], NOTTE)
    t.poligono([(1 + b, 1 + b), (13 - b / 2, 1 + b), (15 - b, 3 + b / 2), (15 - b, 15 - b),
                (1 + b, 15 - b)], MARE)
    t.rettangolo(4, 1, 12, 6, OMBRA)
    t.rettangolo(9, 2, 11, 5, NOTTE)
    t.rettangolo(3, 8, 13, 15 - b, CARTA)
    for y in (10, 12):
        t.rettangolo(5, y, 11, y + 1, RIGA)
    return t


def email(lato):
    t = Tela(lato, 16)
    b = max(1, round(t.k * 0.75)) / t.k
    t.rettangolo(0, 3, 16, 14, NOTTE)
    t.rettangolo(b, 3 + b, 16 - b, 14 - b, CARTA)
    t.tratto([(0.8, 13.2), (6, 8.2)], 0.6, RIGA)
    t.tratto([(15.2, 13.2), (10, 8.2)], 0.6, RIGA)
    t.poligono([(b, 3 + b), (16 - b, 3 + b), (8, 10)], OMBRA, scatto=False)
    t.tratto([(0.7, 3.8), (8, 9.8), (15.3, 3.8)], 0.95, NOTTE)
    return t


def info(lato):
    t = Tela(lato, 16)
    t.disco(8, 8, 7.5, NOTTE)
    t.disco(8, 8, 6.6, MARE)
    t.rettangolo(7, 3, 9, 5, CARTA)
    t.rettangolo(6, 6, 9, 8, CARTA)
    t.rettangolo(7, 6, 9, 12, CARTA)
    t.rettangolo(6, 11, 10, 12 + (0 if lato == 16 else 0.5), CARTA)
    return t


# ---------------------------------------------------------------------------------- the containers

def bmp_dati(rgba, largo, alto):
    """Rows from the bottom, blue first, straight alpha; a clear pixel is all zero."""
    righe = []
    for y in range(alto - 1, -1, -1):
        for x in range(largo):
            r, g, b, a = rgba[(y * largo + x) * 4:(y * largo + x) * 4 + 4]
            righe.append(bytes((b, g, r, a)) if a else b'\0\0\0\0')
    return b''.join(righe)


def dib_icona(t):
    rgba, lato = t.rgba(), t.lato
    # The mask serves where alpha does not: set where the picture is more clear than not.
    passo = (lato + 31) // 32 * 4
    maschera = bytearray()
    for y in range(lato - 1, -1, -1):
        riga = bytearray(passo)
        for x in range(lato):
            if rgba[(y * lato + x) * 4 + 3] < 128:
                riga[x // 8] |= 0x80 >> x % 8
        maschera += riga
    dati = bmp_dati(rgba, lato, lato)
    testa = struct.pack('<IiiHHIIiiII', 40, lato, lato * 2, 1, 32, 0,
                        len(dati) + len(maschera), 0, 0, 0, 0)
    return testa + dati + bytes(maschera)


def contenitore(nome, tele):
    """An .ico. 256 pixels go in as PNG."""
    dati = [t.png() if t.lato >= 256 else dib_icona(t) for t in tele]
    testa = struct.pack('<HHH', 0, 1, len(tele))
    dopo = len(testa) + 16 * len(tele)
    for t, d in zip(tele, dati):
        testa += struct.pack('<BBBBHHII', t.lato % 256, t.lato % 256, 0, 0, 1, 32, len(d), dopo)
        dopo += len(d)
    (RES / nome).write_bytes(testa + b''.join(dati))


def striscia(nome, tele):
    """The toolbar's pictures side by side, as a 32-bit bitmap that image lists take with alpha."""
    lato, n = tele[0].lato, len(tele)
    righe = [t.rgba() for t in tele]
    insieme = b''.join(r[y * lato * 4:(y + 1) * lato * 4] for y in range(lato) for r in righe)
    dati = bmp_dati(insieme, lato * n, lato)
    testa = struct.pack('<IiiHHIIiiII', 40, lato * n, lato, 1, 32, 0, len(dati), 0, 0, 0, 0)
    (RES / nome).write_bytes(
        struct.pack('<2sIHHI', b'BM', 14 + len(testa) + len(dati), 0, 0, 14 + len(testa))
        + testa + dati)


def logo():
    """160 x 80: the mark and the name under a sky of small stars."""
    largo, alto, n = 160, 80, 4
    comandi = [f"fill '{NOTTE}' rectangle 0,0 {largo * n},{alto * n}",
               f"fill '{MARE}' path 'M 0,{62 * n} C {50 * n},{46 * n} {95 * n},{76 * n} "
               f"{160 * n},{54 * n} L {160 * n},{80 * n} L 0,{80 * n} Z'"]

    def stella(x, y, raggio, colore):
        punti = []
        for i in range(8):
            r = (raggio if i % 2 == 0 else raggio * 0.36) * n
            punti.append(f'{x * n + r * math.sin(math.pi / 4 * i):.2f},'
                         f'{y * n - r * math.cos(math.pi / 4 * i):.2f}')
        comandi.append(f"fill '{colore}' polygon " + ' '.join(punti))

    for x, y, r in ((62, 12, 2.5), (84, 18, 1.8), (108, 10, 2.8), (131, 17, 2.2), (150, 9, 2.6),
                    (10, 9, 2), (54, 24, 1.6)):
        stella(x, y, r, OMBRA)
    comandi.append(f"fill '{CARTA}' rectangle {14 * n},{16 * n} {44 * n - 1},{58 * n - 1}")
    for i, fine in enumerate((34, 40, 37)):
        y = 22 + 9 * i
        comandi.append(f"fill '{AMBRA}' rectangle {18 * n},{y * n} {21 * n - 1},{(y + 3) * n - 1}")
        comandi.append(
            f"fill '{RIGA}' rectangle {24 * n},{y * n} {fine * n - 1},{(y + 2) * n - 1}")
    stella(42, 51, 17, '#1c455f')
    stella(42, 51, 14, AMBRA)
    stella(42, 51, 6.5, SABBIA)
    comandi.append(f"fill '{CARTA}' font-size {26 * n} text {62 * n},{50 * n} 'Ostrelle'")
    (RES / 'logo.gif').write_bytes(converti(
        ['-size', f'{largo * n}x{alto * n}', 'xc:' + NOTTE, '-font', 'Liberation-Serif-Italic',
         '-draw', ' '.join(comandi), '-filter', 'Box', '-resize', f'{largo}x{alto}', '+dither',
         '-colors', '64', '-strip', 'gif:-']))


def main():
    contenitore('ostrelle.ico', [icona(lato) for lato in (16, 24, 32, 48, 256)])
    for lato in (16, 24, 32):
        striscia(f'barra{lato}.bmp', [f(lato) for f in (nuovo, apri, salva, email, info)])
    logo()


if __name__ == '__main__':
    main()
