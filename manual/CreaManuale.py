#!/usr/bin/env python3
"""Makes the user's manual (PDF) from manuale.html and its chapters.

CreaManuale.py SORGENTE.html CARTELLA_FIGURE VERSIONE USCITA.pdf
"""

import logging
import os
import pathlib
import re
import sys

import weasyprint


class Guasti(logging.Handler):
    """Keeps what the converter complains of: it goes on without pictures that it does not find."""

    def __init__(self):
        super().__init__(logging.WARNING)
        self.testi = []

    def emit(self, record):
        # Tags are what is wanted of it, whatever a validator may say of the rest.
        if "PDF/UA support is experimental" not in record.getMessage():
            self.testi.append(record.getMessage())


def compone(sorgente, versione):
    """The whole manual as one HTML text."""
    capitoli = "".join(
        file.read_text("utf-8") for file in sorted((sorgente.parent / "capitoli").glob("*.html"))
    )
    testo = sorgente.read_text("utf-8").replace("<!--CAPITOLI-->", capitoli)
    return testo.replace("<!--INDICE-->", indice(testo)).replace("{VERSIONE}", versione)


def indice(testo):
    """The table of contents; the style sheet gives each line its page."""
    righe, dentro = [], False
    for livello, chiave, titolo in re.findall(r'<h([12]) id="([^"]+)"[^>]*>(.*?)</h\1>', testo):
        voce = f'<a href="#{chiave}">{titolo}</a>'
        if livello == "2":
            righe.append(("" if dentro else "<ul>") + f'<li class="due">{voce}</li>')
            dentro = True
            continue
        if righe:
            righe.append(("</ul>" if dentro else "") + "</li>")
        righe.append(f'<li class="uno">{voce}')
        dentro = False
    return "<ul>" + "".join(righe) + ("</ul>" if dentro else "") + "</li></ul>"


def crea(sorgente, figure, versione, uscita):
    guasti = Guasti()
    logging.getLogger("weasyprint").addHandler(guasti)
    foglio = weasyprint.CSS(filename=str(sorgente.with_suffix(".css")))
    testo = compone(sorgente, versione).replace('<link rel="stylesheet" href="manuale.css">', "")
    manuale = weasyprint.HTML(string=testo, base_url=figure.resolve().as_uri() + "/")
    provvisorio = uscita.with_suffix(".nuovo")
    uscita.parent.mkdir(parents=True, exist_ok=True)
    manuale.write_pdf(provvisorio, stylesheets=[foglio], variant="pdf/ua-1")
    if guasti.testi:
        provvisorio.unlink()
        raise RuntimeError("; ".join(guasti.testi))
    os.replace(provvisorio, uscita)


def main(parole):
    if len(parole) != 5:
        print(__doc__, file=sys.stderr)
        return 2
    try:
        crea(pathlib.Path(parole[1]), pathlib.Path(parole[2]), parole[3], pathlib.Path(parole[4]))
    except (OSError, RuntimeError) as guasto:
        print(f"CreaManuale: {guasto}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
