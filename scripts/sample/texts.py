"""What the presenter reads about each airport, and the notes that lie beside some charts. All in Italian.

Each presentation is a tuple of lines: the voice speaks them one by one.
"""

PRESENTATIONS = {
    "LIRF": (
        "Benvenuti a Roma Fiumicino, l'aeroporto intitolato a Leonardo da Vinci.",
        "Siamo a pochi passi dal Tirreno: la quota è di appena quindici piedi sul livello del mare.",
        "Le due piste sedici e trentaquattro sono lunghe quasi quattromila metri; la zero sette e venticinque guarda "
        "verso la costa.",
        "Con il vento di mare, nel pomeriggio, si decolla spesso verso l'acqua e si vira subito dopo la riva.",
        "Prima di partire controllate la frequenza del VOR di Ostia: centoquattordici e novanta.",
        "Buon volo, e godetevi la vista sui Castelli Romani!"),
    "LIMC": (
        "Ecco Milano Malpensa, la grande porta del nord, in mezzo ai boschi del Ticino.",
        "La quota è di settecentosessantasette piedi e le due piste parallele sfiorano i quattromila metri.",
        "A nord le Alpi cominciano presto: dopo il decollo dalla trentacinque bisogna salire con decisione.",
        "D'autunno la nebbia è di casa, perciò l'ILS della trentacinque destra vi farà comodo più di una volta.",
        "Nelle giornate limpide il Monte Rosa si vede già dal parcheggio."),
    "LIPZ": (
        "Vi presento Venezia Tessera, l'aeroporto Marco Polo, sul bordo della laguna.",
        "La pista principale, zero quattro destra e ventidue sinistra, è lunga tremilatrecento metri.",
        "Arrivando da sud-ovest si passa accanto alla città: dal finestrino si riconosce piazza San Marco.",
        "Siamo a sette piedi sul livello del mare; più in basso di così ci sono solo le gondole.",
        "Attenzione alla foschia del mattino, che qui arriva senza bussare."),
    "LIPE": (
        "Siamo a Bologna Borgo Panigale, l'aeroporto Guglielmo Marconi.",
        "C'è una sola pista, la dodici e trenta, lunga duemilaottocento metri.",
        "A sud salgono subito i colli e poi l'Appennino: le partenze virano sempre verso la pianura.",
        "L'ILS serve tutte e due le testate, così il vento non è mai un problema.",
        "E quando avete spento i motori, in città vi aspettano portici e tortellini. Perché non fermarsi?"),
    "LICJ": (
        "Benvenuti a Palermo Punta Raisi, l'aeroporto Falcone e Borsellino.",
        "Le due piste stanno su una lingua di terra fra il mare e la montagna.",
        "Con lo scirocco le raffiche scendono dai rilievi: tenete qualche nodo in più in finale.",
        "La zero sette e venticinque è lunga oltre tremilatrecento metri; la zero due e venti è più corta.",
        "Dopo il decollo si vira sempre verso il mare, ed è già una bella vacanza."),
    "LIML": (
        "Questo è Milano Linate, l'aeroporto di città, intitolato a Enrico Forlanini.",
        "La pista diciassette e trentacinque è lunga circa duemilaquattrocento metri.",
        "Accanto alla testata nord brilla l'Idroscalo: è il miglior punto di riferimento che ci sia.",
        "Dopo il decollo non si vira a ovest, perché lì comincia lo spazio di Malpensa."),
}

# (airport, family, kind of note, chart) -> text; "\n" stands for the line break of the file.
NOTES = {
    ("LIRF", "Sid", "ROTTA", "OSTIA5A"): "PRUA PISTA FINO A RAVEL, POI LIDOX - OSTIA - NETUN.\nALTERNATIVA: OSTIA - GIAND.",
    ("LIRF", "Sid", "ALTITUDINE", "OSTIA5A"): "RAVEL 1500 ft o più\nLIDOX 4000 ft o più\nOSTIA FL090 o più\nSalita "
                                             "iniziale autorizzata: 5000 ft",
    ("LIRF", "Sid", "DECOLLO", "OSTIA5A"): "Decollo verso il mare: nessuna virata prima della costa.\nVento al "
                                          "traverso massimo secondo il manuale del velivolo.",
    ("LIRF", "Sid", "ROTTA", "TIBER6B"): "FOCEN - ARDEA - TIBER - LATIX OPPURE CIRCE.",
    ("LIRF", "Sid", "ALTITUDINE", "TIBER6B"): "FOCEN 2000 ft, ARDEA 4000 ft, TIBER FL100.\nSotto FL100 non più di "
                                             "250 nodi.",
    ("LIRF", "Approach", "MISSED", "ILS16L"): "Salire in prua 161° fino a FOCEN, 2000 ft o più.\nPoi a destra verso "
                                             "MAREL, 3000 ft, e attendere.\nAvvisare subito la torre: «riattacco».",
    ("LIRF", "Approach", "MISSED", "ILS34L"): "Prua 341° fino a FREGE, poi a sinistra verso MAREL a 3000 ft.",
    ("LIMC", "Sid", "ROTTA", "NOVAR5A"): "GALLA - SESTO - NOVAR - BIELA.\nIN ALTERNATIVA NOVAR - CASAL.",
    ("LIMC", "Sid", "ALTITUDINE", "NOVAR5A"): "Gradiente minimo 5 % fino a 5000 ft.\nGALLA 3000 ft, SESTO 5000 ft, "
                                             "NOVAR FL100.",
    ("LIMC", "Sid", "DECOLLO", "NOVAR5A"): "Pista 35R: rilievi a nord, non ritardare la virata a GALLA.",
    ("LIMC", "Approach", "MISSED", "ILS35L"): "Prua 349° fino ad ARONA, 3000 ft o più.\nPoi a sinistra verso NOVAR "
                                             "salendo a 5000 ft.",
    ("LIPZ", "Sid", "ROTTA", "LAGUN5A"): "JESOL - LAGUN - ADRIA OPPURE ISTRO.",
    ("LIPZ", "Sid", "DECOLLO", "LAGUN5A"): "Uccelli sulla laguna all'alba: luci accese fino a 3000 ft.",
    ("LIPZ", "Approach", "MISSED", "ILS04R"): "Prua 041° fino a JESOL, poi a destra verso LAGUN a 3000 ft e attendere.",
    ("LIPE", "Sid", "ROTTA", "RENOS5A"): "IMOLX - RENOS - FERRA OPPURE RAVEN.",
    ("LIPE", "Sid", "ALTITUDINE", "RENOS5A"): "IMOLX 2000 ft, RENOS 5000 ft.\nNessuna virata a sud sotto 4000 ft: "
                                             "c'è l'Appennino.",
    ("LIPE", "Approach", "MISSED", "ILS12"): "Prua 116° fino a IMOLX, poi a sinistra verso BUDRI a 3000 ft.",
    ("LICJ", "Sid", "DECOLLO", "MONDE5A"): "Raffiche da sud possibili: attenzione al wind shear sotto i 1000 ft.",
    ("LICJ", "Approach", "MISSED", "ILS25"): "Prua 245° fino a GOLFO, poi a destra verso MONDE a 4000 ft.\nMai a "
                                            "sinistra: la montagna è più alta di così.",
    ("LIML", "Sid", "ROTTA", "NAVIG5A"): "SEGRA - NAVIG - CREMA OPPURE BERGO.",
    ("LIML", "Approach", "MISSED", "ILS35"): "Prua 355° fino a SEGRA, poi a destra verso NAVIG a 4000 ft.",
}
