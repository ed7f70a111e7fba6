#!/usr/bin/env python3
"""Holds the manual against the program and against itself.

ProvaManuale.py CARTELLA_MANUALE CARTELLA_SRC CARTELLA_FIGURE MANUALE.pdf VERSIONE INVENTARIO

- every name of a control that the manual quotes is read in a window of the running program (INVENTARIO is what
  they had when the pictures were taken), every message stands in the program;
- the table of keys has every key that a window has or the program listens to, and no other;
- every text that the program can show in a box stands in the manual's messages, every window, button and tick box in
  its text;
- every link, bookmark and line of the table of contents leads where it says;
- every picture is there and in its place.
"""

import html
import html.parser
import pathlib
import re
import sys

import pypdf

PAROLE = re.compile(r"[A-Za-zÀ-ÿ]{2,}")
VARIABILE = "\u2024"  # stands for what changes from case to case
# What these say is no box: options of the command line, the explanations on the editor's pages.
SENZA_RIQUADRI = {"LineaDiComando.cpp", "ControlloDaRiga.cpp", "TestiEsplicativi.cpp", "SenzaFinestre.h"}
FIGURE_MINIME = 15
# Names that only appear in what the round of the pictures does not come to.
FUORI_VISTA = {
    "Cerca in", "ELIMINATO", "Nome del file", "Plakera: Modello", "Salva", "apri", "ripristina stampa campo", "scegli",
}
# The keys as the manual calls them, and as Qt does.
TASTI = {
    "Maiusc": "Shift", "Canc": "Delete", "Invio": "Return", "Spazio": "Space", "Esc": "Escape",
    "Pag su": "PageUp", "Pag giù": "PageDown", "Inizio": "Home", "Fine": "End", "↑": "Up", "↓": "Down",
}
MODIFICATORI = {"Ctrl", "Control", "Shift", "Alt", "AltGr"}
DELLA_STORIA = {"Ctrl+Z", "Ctrl+Y", "Ctrl+Shift+Z"}  # no shortcuts: boxes that are typed in have them first
ALTRI_NOMI = {
    "Del": "Delete", "Enter": "Return", "Backtab": "Tab", "Esc": "Escape", "PgUp": "PageUp", "PgDown": "PageDown",
}


def stretto(testo):
    return re.sub(r"\s+", " ", testo).strip()


def nome(testo):
    """The name of a control as it is read: without the mark of its key."""
    return stretto(re.sub(r"&(?!&)", "", testo)).removesuffix(":").rstrip()


def pezzi(testo):
    """The parts of a text between what changes and line ends, as far as they say something."""
    return [p for p in map(stretto, re.split(rf"%\d+|\n|{VARIABILE}", testo)) if PAROLE.search(p)]


# The program


class Programma:
    """The texts that stand in the sources."""

    LETTERALE = re.compile(r'"(?:[^"\\\n]|\\.)*"(?:\s*(?:u|u8)?"(?:[^"\\\n]|\\.)*")*')
    COMMENTO = re.compile(r'//[^\n]*|/\*.*?\*/|("(?:[^"\\\n]|\\.)*")', re.S)
    BOTTONE = re.compile(
        r'<widget class="(?:Q(?:Widget|Dialog|PushButton|ToolButton|CheckBox|RadioButton))" name="\w+">'
        r'(?:(?!<widget).)*?<property name="(?:windowTitle|text)">\s*<string[^>]*>([^<]+)<', re.S
    )
    FUGHE = {"n": "\n", "t": "\t", "r": "\r"}

    def __init__(self, src, inventario):
        self.testi = []  # all
        self.messaggi = []  # those that must stand in the manual's messages
        self.bottoni = []  # and in its text: windows and what is pressed
        for file in sorted(src.rglob("*")):
            if file.suffix == ".ui":
                testo = file.read_text("utf-8")
                self.testi += map(html.unescape, re.findall(r"<string[^>]*>([^<]*)</string>", testo))
                self.bottoni += [(file.name, html.unescape(t)) for t in self.BOTTONE.findall(testo)]
            elif file.suffix in {".cpp", ".h"}:
                self._legge(file)
        self.nomi = {nome(testo) for testo in self.testi}
        self.ascoltati = {
            ALTRI_NOMI.get(tasto, tasto)
            for file in src.rglob("*.cpp")
            for tasto in re.findall(r"Qt::Key_(\w+)", file.read_text("utf-8"))
        } - MODIFICATORI
        righe = [riga.split("\t", 1) for riga in inventario.read_text("utf-8").splitlines()]
        self.in_vista = {nome(testo) for genere, testo in righe if genere == "nome"}
        self.tasti = {
            "+".join(ALTRI_NOMI.get(parte, parte) for parte in testo.split("+"))
            for genere, testo in righe
            if genere == "tasti" and testo and not re.fullmatch(r"Alt\+\w", testo)  # those are underlined letters
        }
        self.pezzi = {p for testo in self.testi for p in pezzi(testo)}

    def _legge(self, file):
        testo = self.COMMENTO.sub(lambda m: m.group(1) or "", file.read_text("utf-8"))
        testo = re.sub(r"^#include.*$", "", testo, flags=re.M)
        for trovato in self.LETTERALE.finditer(testo):
            letterale = self._valore(trovato.group())
            self.testi.append(letterale)
            prima = testo[max(0, testo.rfind(";", 0, trovato.start())) : trovato.start()]
            in_un_riquadro = "Messaggi::" in prima or file.name == "ErroreSistema.cpp"
            frase = len(PAROLE.findall(letterale)) > 1 and " " in stretto(letterale)
            if file.name not in SENZA_RIQUADRI and (frase or in_un_riquadro):
                self.messaggi.append((file.name, letterale))

    @classmethod
    def _valore(cls, codice):
        parti = re.findall(r'"((?:[^"\\\n]|\\.)*)"', codice)
        return re.sub(r"\\(.)", lambda m: cls.FUGHE.get(m.group(1), m.group(1)), "".join(parti))


# The manual


class Manuale(html.parser.HTMLParser):
    """What is marked in the chapters."""

    def __init__(self, testi):
        super().__init__()
        self.comandi, self.messaggi, self.immagini = [], [], []
        self.titoli, self.chiavi, self.rinvii = [], [], []
        self._aperti = []
        for testo in testi:
            self.feed(testo)

    def handle_starttag(self, tag, attrs):
        dati = dict(attrs)
        classi = (dati.get("class") or "").split()
        if "id" in dati:
            self.chiavi.append(dati["id"])
        if tag == "img":
            self.immagini.append(dati["src"])
        elif tag == "br":
            self._scrive("\n")
        elif tag == "i" and any(elenco is self.messaggi for _, elenco, _ in self._aperti):
            self._aperti.append([tag, None, ""])
        elif tag in {"h1", "h2"}:
            self._aperti.append([tag, self.titoli, ""])
            if "id" not in dati:
                self.chiavi.append(None)
        elif tag == "a" and "href" in dati:
            self.rinvii.append(dati["href"])
        elif "esempio" not in classi and {"c", "m"} & set(classi):
            self._aperti.append([tag, self.comandi if "c" in classi else self.messaggi, ""])

    def handle_endtag(self, tag):
        if self._aperti and self._aperti[-1][0] == tag:
            _, elenco, testo = self._aperti.pop()
            if elenco is None:
                self._scrive(VARIABILE)
            else:
                elenco.append(testo)

    def handle_data(self, data):
        self._scrive(re.sub(r"\s+", " ", data))

    def _scrive(self, testo):
        if self._aperti:
            self._aperti[-1][2] += testo


def composto(pezzo, di):
    """Whether the text consists of whole pieces of the program, or lies within one."""
    if any(pezzo in intero for intero in di):
        return True
    raggiunti = {0}
    for inizio in range(len(pezzo)):
        if inizio in raggiunti:
            raggiunti |= {inizio + len(p) for p in di if pezzo.startswith(p, inizio)}
            raggiunti |= {inizio + len(p) for p in (*" :;,.()«»", "e ") if pezzo.startswith(p, inizio)}
    return len(pezzo) in raggiunti


def guasti_dei_nomi(manuale, programma):
    guasti = [
        f'no control "{c}"'
        for c in manuale.comandi
        if nome(c) not in programma.in_vista | (FUORI_VISTA & programma.nomi)
    ]
    guasti += [f'"{n}" is read in a window now' for n in FUORI_VISTA & programma.in_vista]
    for messaggio in manuale.messaggi:
        for pezzo in pezzi(messaggio):
            if not composto(pezzo, programma.pezzi):
                guasti.append(f'the program does not say "{pezzo}"')
    return guasti


def tasti_scritti(testo):
    """The keys of the tables' first column, as Qt calls them; a letter alone has the modifiers of the one before."""
    scritti = set()
    for riga in re.findall(r"<tr><td>(.*?)</td>", testo, re.S):
        prima = ""
        for tasti in re.findall(r"<kbd>(.*?)</kbd>", riga):
            if len(tasti) == 1 and prima and tasti.isalpha():
                tasti = f"{prima}+{tasti}"
            prima = tasti.rpartition("+")[0]
            scritti.add("+".join(TASTI.get(tasto, tasto) for tasto in tasti.split("+")))
        if "frecce" in riga:
            scritti |= {"Left", "Right", "Up", "Down"}
    return scritti - MODIFICATORI


def guasti_dei_tasti(testo, programma):
    scritti = tasti_scritti(testo)
    ultimi = {tasti.rpartition("+")[2] for tasti in scritti}
    veri = programma.tasti | DELLA_STORIA | {t for t in programma.ascoltati if len(t) > 1}
    guasti = [f"key that the table does not have: {t}" for t in programma.tasti - scritti]
    guasti += [f"key that the table does not have: {t}" for t in programma.ascoltati - ultimi]
    return guasti + [f"nothing has the key {t}" for t in scritti if t not in veri and t.rpartition("+")[2] not in veri]


def guasti_dei_bottoni(manuale, programma):
    nomi = {nome(c).lower() for c in manuale.comandi}
    return [f'the manual has no "{b}" ({f})' for f, b in programma.bottoni if nome(b).lower() not in nomi]


def guasti_dei_messaggi(manuale, programma, altri):
    """altri: texts of the program that no box shows."""
    detti = [stretto(m) for m in manuale.messaggi]
    nomi = {nome(c) for c in manuale.comandi}
    guasti = []
    for file, letterale in programma.messaggi:
        parti = [pezzo.strip(" .:;,") for pezzo in pezzi(letterale)]
        cercato = re.compile(".*?".join(map(re.escape, parti)))
        if not parti or nome(letterale) in nomi | altri:
            continue
        if not any(map(cercato.search, detti)):
            guasti.append(f'the manual does not explain "{stretto(letterale)}" ({file})')
    return guasti + [f'"{testo}" is no text of the program any more' for testo in altri - programma.nomi]


def guasti_dei_rinvii(manuale, figure):
    guasti = [f"link to nowhere: {r}" for r in manuale.rinvii if r.removeprefix("#") not in manuale.chiavi]
    guasti += [f"key used twice or missing: {k}" for k in manuale.chiavi if manuale.chiavi.count(k) > 1 or k is None]
    presenti = {file.name for file in figure.glob("*.png")}
    guasti += [f"no picture {i}" for i in manuale.immagini if i not in presenti]
    guasti += [f"picture in no place: {i}" for i in presenti - set(manuale.immagini)]
    if len(manuale.immagini) < FIGURE_MINIME:
        guasti.append(f"only {len(manuale.immagini)} pictures")
    return guasti


# The PDF


def liscio(testo):
    """Letters and figures alone: how lines and words were broken does not matter."""
    return re.sub(r"[^0-9a-zà-ÿ]", "", testo.lower())


class Pdf:
    def __init__(self, file):
        self.pdf = pypdf.PdfReader(str(file))
        self.pagine = [pagina.extract_text() for pagina in self.pdf.pages]
        self.mete = {
            chiave: self.pdf.get_destination_page_number(meta)
            for chiave, meta in self.pdf.named_destinations.items()
        }
        self.segnalibri = list(self._piatto(self.pdf.outline))
        self.rinvii = []  # page, key
        figure = set()
        for n, pagina in enumerate(self.pdf.pages):
            risorse = pagina["/Resources"].get("/XObject") or {}
            figure |= {v.idnum for v in risorse.values() if v.get_object().get("/Subtype") == "/Image"}
            for voce in pagina.get("/Annots") or []:
                voce = voce.get_object()
                if voce.get("/Subtype") == "/Link":
                    azione = voce.get("/A")
                    meta = voce.get("/Dest") or (azione and azione.get("/D")) or (azione and azione.get("/URI"))
                    self.rinvii.append((n, str(meta)))
        self.figure = len(figure)

    def _piatto(self, voci):
        for voce in voci:
            if isinstance(voce, list):
                yield from self._piatto(voce)
            else:
                yield voce.title, self.pdf.get_destination_page_number(voce)


def guasti_del_pdf(pdf, manuale, versione):
    guasti = [f"page {n + 1}: link to nowhere, {chiave}" for n, chiave in pdf.rinvii if chiave not in pdf.mete]
    titoli = [stretto(t) for t in manuale.titoli]
    if [stretto(t) for t, _ in pdf.segnalibri] != titoli:
        guasti.append("the bookmarks are not the headings")
    chiavi = [k for k in manuale.chiavi if k]
    for titolo, chiave, (_, pagina) in zip(titoli, chiavi, pdf.segnalibri):
        if liscio(titolo) not in liscio(pdf.pagine[pagina]):
            guasti.append(f'bookmark "{titolo}": not on page {pagina + 1}')
        if pdf.mete.get(chiave) != pagina:
            guasti.append(f'link "{chiave}": page {pdf.mete.get(chiave)}, bookmark: {pagina}')
    # Each heading is linked from the table of contents; links that are broken over two lines are two.
    quanti = len(manuale.rinvii) + len(titoli)
    if len(pdf.rinvii) < quanti or {k for _, k in pdf.rinvii} != set(chiavi):
        guasti.append(f"{len(pdf.rinvii)} links, {quanti} written")
    prima = min(pagina for _, pagina in pdf.segnalibri)
    indice = liscio("".join(pdf.pagine[1:prima]))
    for titolo, (_, pagina) in zip(titoli, pdf.segnalibri):
        if f"{liscio(titolo)}{pagina + 1}" not in indice:
            guasti.append(f'"{titolo}" with page {pagina + 1} is not in the table of contents')
    for n, pagina in enumerate(pdf.pagine[1:], 2):
        if not re.search(rf"\b{n}\b", pagina):
            guasti.append(f"page {n} has no number")
    if f"Versione {versione}" not in stretto(pdf.pagine[0]):
        guasti.append("no version on the cover")
    if not pdf.pdf.trailer["/Root"].get("/MarkInfo", {}).get("/Marked"):
        guasti.append("no tags")
    if pdf.figure < len(set(manuale.immagini)):
        guasti.append(f"{pdf.figure} pictures printed, {len(set(manuale.immagini))} written")
    return guasti


# The test of the test


def difetti_non_visti(fonti, programma, altri, figure):
    """Faults put into the manual that the checks above do not see."""
    intero = "".join(fonti)

    def guasti(testo):
        manuale = Manuale([testo])
        return (
            guasti_dei_nomi(manuale, programma)
            + guasti_dei_tasti(testo, programma)
            + guasti_dei_bottoni(manuale, programma)
            + guasti_dei_messaggi(manuale, programma, altri)
            + guasti_dei_rinvii(manuale, figure)
        )

    difetti = {
        "a control that is not there": ('<b class="c">Salva modello</b>', '<b class="c">Salva il modello</b>'),
        "a key that nothing has": ("<kbd>Ctrl+E</kbd>", "<kbd>Ctrl+K</kbd>"),
        "a key with another modifier": ("<kbd>Ctrl+E</kbd>", "<kbd>Ctrl+M</kbd>"),
        "a key that is left out": ("<kbd>F7</kbd></td>", "</td>"),
        "a button not explained": ("Rimisura immagine", "Misura"),
        "a message told wrongly": ("salvare le variazioni</q>", "salvare le modifiche</q>"),
        "a message not explained": ("troppi fonts installati", ""),
        "a link to nowhere": ('href="#controlli"', 'href="#controllo"'),
        "a missing picture": ('src="Calibra.png"', 'src="Calibro.png"'),
    }
    prima = set(guasti(intero))
    return [
        f"not seen: {difetto}"
        for difetto, (bene, male) in difetti.items()
        if bene not in intero or not set(guasti(intero.replace(bene, male))) - prima
    ]


def main(parole):
    cartella, src, figure, file = map(pathlib.Path, parole[1:5])
    fonti = [(cartella / "manuale.html").read_text("utf-8")]
    fonti += [f.read_text("utf-8") for f in sorted((cartella / "capitoli").glob("*.html"))]
    righe = (cartella / "non_messaggi.txt").read_text("utf-8").splitlines()
    altri = {nome(riga) for riga in righe if riga.strip() and not riga.startswith("#")}
    programma, manuale = Programma(src, pathlib.Path(parole[6])), Manuale(fonti)
    guasti = (
        guasti_dei_nomi(manuale, programma)
        + guasti_dei_tasti("".join(fonti), programma)
        + guasti_dei_bottoni(manuale, programma)
        + guasti_dei_messaggi(manuale, programma, altri)
        + guasti_dei_rinvii(manuale, figure)
        + guasti_del_pdf(Pdf(file), manuale, parole[5])
        + difetti_non_visti(fonti, programma, altri, figure)
    )
    for guasto in guasti:
        print(guasto, file=sys.stderr)
    print(f"{len(manuale.comandi)} names, {len(manuale.messaggi)} messages, {len(manuale.rinvii)} references")
    return 1 if guasti else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
