#include "prompts/own_messages.h"

#include <array>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

// %1 is the file or folder, %2 what in it offends.
constexpr std::array messages = {
    OwnMessage{u"0101", u"Quarvel - Attenzione"},
    OwnMessage{u"0102", u"OK"},
    OwnMessage{u"0103", u"&Annulla"},
    OwnMessage{u"0104", u"&Sì"},
    OwnMessage{u"0105", u"&No"},
    // What was being done.
    OwnMessage{u"0110", u"Il nome scelto non può essere usato per un aeroporto."},
    OwnMessage{u"0111", u"I dati dell'aeroporto non possono essere letti."},
    OwnMessage{u"0112", u"Le cartelle del nuovo aeroporto non possono essere create."},
    OwnMessage{u"0113", u"La foto dell'aeroporto non può essere mostrata."},
    OwnMessage{u"0114", u"L'elenco delle procedure non può essere letto."},
    OwnMessage{u"0115", u"La cartina scelta non può essere mostrata."},
    OwnMessage{u"0116",
               u"L'immagine scelta è troppo grande per essere mostrata: nella finestra non cambia nulla."},
    OwnMessage{u"0117", u"Le note della cartina non possono essere lette."},
    OwnMessage{u"0118", u"Le note non sono state salvate: quelle sul disco sono rimaste come prima."},
    OwnMessage{u"0119",
               u"Scegli prima una cartina dall'elenco: solo allora le sue note possono essere salvate."},
    OwnMessage{
        u"0120",
        u"Non c'è alcuna stampante predefinita. Scegline una nelle impostazioni del sistema e riprova."},
    OwnMessage{u"0121",
               u"La stampa non è riuscita. Controlla che la stampante sia accesa e pronta, poi riprova."},
    OwnMessage{u"0122",
               u"L'aeroporto non è stato salvato: i dati che hai scritto sono ancora nella finestra."},
    OwnMessage{u"0123", u"I testi della lingua scelta non possono essere letti."},
    // Why, and what to do.
    OwnMessage{u"0130", u"Questo file o questa cartella non esiste:\n%1\nControlla che sia al suo posto "
                        u"nell'archivio e riprova."},
    OwnMessage{u"0131", u"Non è un file normale:\n%1\nMetti al suo posto un file vero e riprova."},
    OwnMessage{u"0132", u"Il sistema non permette di leggere:\n%1\nControlla i permessi e riprova."},
    OwnMessage{u"0133", u"Il sistema non permette di scrivere:\n%1\nControlla i permessi e che la cartella "
                        u"esista, poi riprova."},
    OwnMessage{u"0134", u"Il disco è pieno e non c'è posto per:\n%1\nLibera dello spazio e riprova."},
    OwnMessage{u"0135", u"È troppo grande:\n%1\nControlla che sia il file giusto."},
    OwnMessage{u"0136", u"È incompleto:\n%1\nControlla che il file contenga tutti i suoi valori."},
    OwnMessage{u"0137", u"È danneggiato o di un altro formato:\n%1\nSostituiscilo con una copia buona."},
    OwnMessage{u"0138",
               u"Non è un nome valido: «%1».\nUsa lettere, cifre e spazi interni, senza / \\ * ? \" < > | : "
               u"e senza punto all'inizio né punto o spazio alla fine; se è molto lungo, accorcialo."},
    OwnMessage{
        u"0139",
        u"Il testo contiene il carattere «%2», che il file non può conservare:\n%1\nToglilo e riprova."},
    // The menu of a text box.
    OwnMessage{u"0140", u"&Annulla modifica"},
    OwnMessage{u"0141", u"&Ripeti"},
    OwnMessage{u"0142", u"&Taglia"},
    OwnMessage{u"0143", u"&Copia"},
    OwnMessage{u"0144", u"&Incolla"},
    OwnMessage{u"0145", u"Elimina"},
    OwnMessage{u"0146", u"Seleziona tutto"},
    // What was being done at the start.
    OwnMessage{u"0147", u"La cartella del programma non può essere preparata."},
    // What stands where there is nothing else to see.
    OwnMessage{u"0150", u"L'archivio è vuoto. Scrivi il nome del primo aeroporto e premi «CREA»."},
    OwnMessage{u"0151", u"Scrivi l'inizio del nome: l'elenco segue ogni tasto. Poi un clic, oppure Freccia "
                        u"giù e Invio, apre l'aeroporto."},
    OwnMessage{u"0152", u"Nessun aeroporto comincia così. Correggi il nome, oppure premi «CREA» per "
                        u"aggiungere un aeroporto nuovo."},
    OwnMessage{u"0153", u"La cartella dell'archivio manca o non si può leggere:\n%1"},
    OwnMessage{u"0154", u"Scegli qui sopra SID, STAR o APPROACH: le cartine appariranno in questo elenco."},
    OwnMessage{
        u"0155",
        u"Nessuna cartina qui. Copia immagini GIF in questa cartella, poi scegli di nuovo la procedura:\n%1"},
    OwnMessage{u"0156", u"Scegli una cartina dall'elenco: apparirà qui."},
    // What assistive tools call what has no caption.
    OwnMessage{u"0160", u"Foto dell'aeroporto"},
    OwnMessage{u"0161", u"Decorazione"},
    OwnMessage{u"0162", u"Cartina"},
    OwnMessage{u"0163", u"Scorrimento orizzontale della cartina"},
    OwnMessage{u"0164", u"Scorrimento verticale della cartina"},
    OwnMessage{u"0165", u"Note (non usate)"},
    // Why, when it may pass by itself, and what a save left half done.
    OwnMessage{u"0170", u"La lettura non è riuscita:\n%1\nPuò essere un guasto passeggero del disco o della "
                        u"rete: riprova. Se si ripete, controlla il disco."},
    OwnMessage{u"0171", u"La scrittura non è riuscita:\n%1\nPuò essere un guasto passeggero del disco o "
                        u"della rete, oppure un altro programma sta usando il file: riprova."},
    OwnMessage{u"0172", u"Questi file sono già stati sostituiti:\n%1\nLe loro versioni precedenti sono "
                        u"qui:\n%2\nConservale, controlla il disco e salva di nuovo."},
    OwnMessage{
        u"0173",
        u"Questi file prima non c'erano e sono già stati creati:\n%1\nControlla il disco e salva di nuovo."},
    OwnMessage{u"0174",
               u"Il salvataggio è riuscito solo in parte. Quello che hai scritto è ancora nella finestra."},
    OwnMessage{
        u"0175",
        u"Salvato. Questi file avevano anche altri nomi (collegamenti fisici), che conservano il contenuto "
        u"di prima:\n%1\nSe anche quelli devono cambiare, copia di nuovo questi file al loro posto."},
    // What the program remembers by itself.
    OwnMessage{u"0180", u"Un file con i dati che il programma conserva per sé non era utilizzabile: è stato "
                        u"messo da parte e ne comincia uno nuovo. I tuoi aeroporti sono come prima.\n%1"},
    OwnMessage{u"0181", u"Il programma non può conservare sul disco ciò che ricorda per sé, come le bozze: "
                        u"lo ricorda solo finché resta aperto."},
    OwnMessage{u"0182", u"La versione precedente di un file che viene sostituito non può essere conservata. "
                        u"Il salvataggio prosegue lo stesso."},
    // What the command line says.
    OwnMessage{
        u"0183",
        u"Uso: quarvel [COMANDO]\n\nSenza comando si aprono le finestre.\n  versions [AEROPORTO]  elenca le "
        u"versioni precedenti dei suoi file, o di tutti\n  bring-back FILE N     ripristina la versione N di "
        u"un "
        u"file dell'elenco;\n                        quella di adesso viene conservata\n  --help             "
        u"   questo testo\n  --version             il numero del programma"},
    OwnMessage{u"0184",
               u"Comando non riconosciuto o incompleto: «%1».\n«quarvel --help» spiega come si usa."},
    OwnMessage{u"0185", u"Non ci sono versioni precedenti di «%1»."},
    OwnMessage{u"0186", u"Non c'è una versione %2 di «%1». «quarvel versions» elenca quelle che ci sono."},
    OwnMessage{u"0187",
               u"Ora «%1» contiene la versione del %2. Il contenuto di prima è tra le versioni precedenti."},
    OwnMessage{u"0188", u"La versione non è stata ripristinata: il file è rimasto com'era."},
    // The question before a save.
    OwnMessage{u"0189", u"Sul disco c'è qualcosa che in questa finestra non hai visto:\n%1\nSe salvi sopra, "
                        u"ciò che c'è sul disco resta tra le versioni precedenti. Se rileggi, vedi qui ciò "
                        u"che c'è sul disco, e quello che hai scritto diventa una bozza."},
    OwnMessage{u"0190", u"&Salva sopra"},
    OwnMessage{u"0191", u"&Rileggi"},
    // What is typed and not saved yet.
    OwnMessage{u"0200", u"Il testo incollato o trascinato è più lungo dello spazio nella casella: è entrato "
                        u"solo quello che ci stava. Il testo intero è ancora là da dove viene."},
    // Drafts: %1 is a note's beginning, or the airport, with the number of its values.
    OwnMessage{u"0201", u"Bozza non salvata: «%1». Ctrl+Z la riprende, Esc la scarta."},
    OwnMessage{u"0202", u"C'è una bozza non salvata: Ctrl+Z la riprende, Esc la scarta"},
    OwnMessage{u"0203", u"Dei dati di %1 c'è una bozza non salvata (caselle scritte: %2). In una casella, "
                        u"Ctrl+Z la riprende, Esc la scarta."},
    OwnMessage{u"0204", u"Ha una bozza non salvata"},
    // Beside the list of charts.
    OwnMessage{u"0210", u"In questa cartella ci sono anche PDF o immagini di altro tipo, che l'elenco non "
                        u"mostra: %1. Le cartine sono immagini GIF."},
    // The main window: the language, a new airport, a missing picture.
    OwnMessage{u"0220",
               u"La lingua scelta vale da adesso, ma non può essere ricordata per il prossimo avvio."},
    OwnMessage{u"0221",
               u"Vuoi lasciare questo aeroporto senza salvarlo? I dati che hai scritto restano come bozza."},
    OwnMessage{u"0222", u"La foto va messa qui:\n%1"},
    // A picture with rows missing. %2 is a number.
    OwnMessage{u"0240", u"La cartina scelta non è completa: vedi solo quello che il suo file contiene."},
    OwnMessage{u"0241", u"La foto dell'aeroporto non è completa: vedi solo quello che il suo file contiene."},
    OwnMessage{u"0242", u"Manca la parte in basso (%2 % dell'altezza), segnata con strisce "
                        u"grigie:\n%1\nSostituisci il file con una copia intera."},
    OwnMessage{u"0243", u"Mancano delle righe (%2 % dell'altezza), segnate con strisce "
                        u"grigie:\n%1\nSostituisci il file con una copia intera."},
    OwnMessage{u"0244", u"I segni «%2», uno accanto all'altro, in questo file verrebbero riletti come un "
                        u"altro segno:\n%1\nMetti uno spazio fra loro e riprova."},
    OwnMessage{u"0245",
               u"Qui serve una cartella, ma c'è un file:\n%1\nSpostalo o dagli un altro nome, poi riprova."},
    // What came of printing.
    OwnMessage{u"0250", u"Il servizio di stampa del sistema non risponde: non è stato stampato nulla e nulla "
                        u"sarà stampato più tardi. Controlla che sia avviato e raggiungibile, poi riprova."},
    OwnMessage{u"0251", u"Il servizio di stampa ha smesso di rispondere mentre riceveva la pagina: non si sa "
                        u"se sarà stampata. Prima di riprovare, controlla la coda di stampa."},
};

QString numberOf(Fault fault) {
    switch (fault) {
    case Fault::NotFound: return u"0130"_s;
    case Fault::NotRegular: return u"0131"_s;
    case Fault::NotFolder: return u"0245"_s;
    case Fault::Unreadable: return u"0132"_s;
    case Fault::Unwritable: return u"0133"_s;
    case Fault::DiskFull: return u"0134"_s;
    case Fault::TooLarge: return u"0135"_s;
    case Fault::TooShort: return u"0136"_s;
    case Fault::Damaged: return u"0137"_s;
    case Fault::BadName: return u"0138"_s;
    case Fault::NotInCodePage: return u"0139"_s;
    case Fault::ReadFailed: return u"0170"_s;
    case Fault::WriteFailed: return u"0171"_s;
    case Fault::PartlyReplaced: return u"0172"_s;
    case Fault::Ambiguous: return u"0244"_s;
    case Fault::CutOff: return u"0242"_s;
    case Fault::RowsMissing: return u"0243"_s;
    }
    return {};
}

/// The reason of a save in part, when what is new replaced nothing.
const QString partlyMade = u"0173"_s;

} // namespace

std::span<const OwnMessage> ownMessages() { return messages; }

QString builtInText(const QString& number) {
    for (const OwnMessage& message : messages)
        if (number == QString::fromUtf16(message.number)) return QString::fromUtf16(message.italian);
    return {};
}

QString ownText(modLanguageSupport& language, const QString& number) {
    const QString found = language.MLSGetString(number).replace(u"\\n"_s, u"\n"_s);
    return found.isEmpty() ? builtInText(number) : found;
}

QString filledIn(const QString& text, const QString& first, const QString& second) {
    QString filled;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QStringView place = QStringView(text).mid(at, 2);
        if (place == u"%1" || place == u"%2") ++at;
        filled += place == u"%1" ? first : place == u"%2" ? second : QString(place.front());
    }
    return filled;
}

QString reasonText(modLanguageSupport& language, const Failure& failure) {
    const bool onlyMade = failure.fault == Fault::PartlyReplaced && failure.detail.isEmpty();
    const QString reason = ownText(language, onlyMade ? partlyMade : numberOf(failure.fault));
    return filledIn(reason, failure.path, failure.detail);
}

QString standingText(modLanguageSupport& language, const QString& number) {
    return language.hasLanguage() ? ownText(language, number) : builtInText(number);
}

} // namespace quarvel
