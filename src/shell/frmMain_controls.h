#pragma once

#include "forms/button.h"
#include "forms/control_array.h"
#include "forms/frame.h"
#include "forms/hidden_text_box.h"
#include "forms/hint.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/menu.h"
#include "forms/text_box.h"

namespace quarvel {

/// The main window's controls, a row each, in the order of its control list: name, place in twips inside the
/// container (left, top, width, height), built-in texts, initial state. Earlier rows stand in front of later
/// ones.
struct frmMainControls {
    explicit frmMainControls(Container& window);

    void showInformation();

    /// Where a mail from the information frame goes. All else that names the address follows this line
    /// (scripts/check version).
    static constexpr char16_t supportAddress[] = u"supporto@quarvel.example";

    Container& form;
    ControlArray<TextBox> txtRwy; ///< the 39 entry fields; the index is the value's position in the record
    ControlArray<Label> Label6;
    ControlArray<Image> ImgLingua;
    ControlArray<Image> Image1;
    ControlArray<MenuItem> mnuLanguage;

    static constexpr Look headingLook{Face::TimesNewRoman, 8.25, Weight::Bold, colour::ink, colour::window};
    static constexpr Look titleLook{Face::TimesNewRoman, 14.25, Weight::Bold, colour::ink, colour::window};
    static constexpr Look entryLook{Face::Arial, 14.25, Weight::Bold, QColor(0, 0, 0), QColor(255, 255, 255)};
    static constexpr Look informationLook{Face::Arial, 9.75, Weight::Bold, QColor(255, 255, 0)};
    static constexpr Look addressLook{Face::Arial, 15.75, Weight::Bold, QColor(0, 0, 255),
                                      QColor(255, 255, 192)};

    // clang-format off
    Frame     fraRicerca {form,       {.name = "fraRicerca", .place = {5400, 0, 4935, 2775}, .shown = Shown::No, .look = {.text = QColor(255, 255, 255), .background = colour::results}}};
    ListBox   lstWords   {fraRicerca, {.name = "lstWords", .place = {120, 480, 4695, 2220}, .look = {Face::Arial, 9.75, Weight::Bold, QColor(255, 255, 255), QColor(0, 0, 0)}}};
    Label     Label16    {fraRicerca, {.name = "Label16", .place = {120, 240, 2895, 255}, .caption = u"AEROPORTI IN ARCHIVIO", .look = {Face::Arial, 8.25, Weight::Bold, QColor(255, 255, 255)}}};

    HiddenTextBox TxtFile {form,   {.name = "TxtFile", .place = {2640, 3120, 5415, 2535}, .shown = Shown::No}};

    Frame     fraMail     {form,      {.name = "fraMail", .place = {2520, 2160, 5175, 4335}, .caption = u"INFORMAZIONI", .shown = Shown::No, .look = {.weight = Weight::Bold, .text = QColor(255, 255, 0), .background = QColor(0, 0, 0)}}};
    Button    cmdEsciMail {fraMail,   {.name = "cmdEsciMail", .place = {3720, 3480, 855, 735}, .caption = u"&Chiudi", .toolTip = u"Chiudi la finestra", .picture = "esci_mail"}};
    Link      Label15     {fraMail,   {.name = "Label15", .place = {0, 1200, 5175, 495}, .caption = supportAddress, .look = addressLook}};
    Label     Label6_4    {fraMail,   {.name = "Label6", .index = 4, .place = {0, 1680, 5175, 2625}, .caption =
        u"e  farò del mio meglio per rispondervi o risolvere il problema al più presto possibile. ATTENZIONE!!! "
        u"Non utilizzate questo software per la navigazione reale.              "
        u"Il programma è e deve rimanere FREEWARE per tutti gli appassionati della Simulazione di Volo."
        u"                                      Il gruppo di Quarvel", .look = informationLook, .align = Qt::AlignHCenter | Qt::AlignTop}};
    Label     Label6_3    {fraMail,   {.name = "Label6", .index = 3, .place = {0, 0, 5175, 1200}, .caption =
        u"Se chiunque ha  domande,  suggerimenti, bug da segnalare o  altri problemi di supporto riguardo a questo "
        u"software per favore spedite un E-mail a :", .look = informationLook}};

    Frame     Frame4      {form,      {.name = "Frame4", .place = {0, 2280, 5415, 5415}, .caption = u"DATI DELL'AEROPORTO", .shown = Shown::No, .look = {.weight = Weight::Bold, .background = colour::window}}};
    struct NavigationAids { explicit NavigationAids(frmMainControls& all); } navigationAids {*this};
    struct RunwayGrid     { explicit RunwayGrid(frmMainControls& all); }     runwayGrid {*this};
    Label     Label9      {Frame4,    {.name = "Label9",  .place = {240, 360, 855, 435},   .caption = u"ID VOR",   .look = headingLook}};
    Label     Label10     {Frame4,    {.name = "Label10", .place = {1320, 360, 1095, 435}, .caption = u"FREQ VOR", .look = headingLook}};
    Label     Label12     {Frame4,    {.name = "Label12", .place = {2640, 360, 855, 435},  .caption = u"ID NDB",   .look = headingLook}};
    Label     Label13     {Frame4,    {.name = "Label13", .place = {3720, 360, 1095, 435}, .caption = u"FREQ NDB", .look = headingLook}};
    Label     Label6_0    {Frame4,    {.name = "Label6", .index = 0, .place = {240, 1320, 615, 435},  .caption = u"RWY",    .look = headingLook}};
    Label     Label6_1    {Frame4,    {.name = "Label6", .index = 1, .place = {1200, 1320, 975, 435}, .caption = u"LENGHT", .look = headingLook}};
    Label     Label6_2    {Frame4,    {.name = "Label6", .index = 2, .place = {2400, 1320, 855, 435}, .caption = u"ID ILS", .look = headingLook}};
    Label     Label7      {Frame4,    {.name = "Label7", .place = {3360, 1320, 1095, 435}, .caption = u"FREQ ILS", .look = headingLook}};
    Label     Label8      {Frame4,    {.name = "Label8", .place = {4560, 1320, 735, 435},  .caption = u"PRUA ILS", .look = headingLook}};

    Frame     Frame2      {form,      {.name = "Frame2", .place = {5400, 2760, 2055, 1455}, .caption = u"SCELTA LINGUA", .look = {.weight = Weight::Bold}}};
    struct Flags { explicit Flags(frmMainControls& all); } flags {*this};

    Frame     Frame1      {form,      {.name = "Frame1", .place = {0, 0, 5415, 2295}, .caption = u"DATABASE AEROPORTI", .look = {.weight = Weight::Bold, .background = colour::panel}}};
    Label     Label1      {Frame1,    {.name = "Label1", .place = {0, 240, 5370, 495}, .caption = u"SCELTA AEROPORTO", .look = titleLook}};
    TextBox   txtNomeAeroporto {Frame1, {.name = "txtNomeAeroporto", .place = {0, 720, 5350, 450}, .look = entryLook}};
    Button    cmdElabora  {Frame1,    {.name = "cmdElabora", .place = {4680, 1320, 615, 735}, .caption = u"&CREA", .toolTip = u"Cerca le Procedure", .usable = Usable::No, .picture = "elabora"}};
    struct GeneralData { explicit GeneralData(frmMainControls& all); } generalData {*this};
    Label     Label2      {Frame1,    {.name = "Label2",  .place = {0, 1200, 855, 435},    .caption = u"COD. ICAO",  .shown = Shown::No, .look = headingLook}};
    Label     Label11     {Frame1,    {.name = "Label11", .place = {960, 1200, 855, 435},  .caption = u"TRANS. ALT", .shown = Shown::No, .look = headingLook}};
    Label     Label3      {Frame1,    {.name = "Label3",  .place = {1920, 1200, 855, 435}, .caption = u"LONG",       .shown = Shown::No, .look = headingLook}};
    Label     Label4      {Frame1,    {.name = "Label4",  .place = {2880, 1200, 855, 435}, .caption = u"LAT",        .shown = Shown::No, .look = headingLook}};
    Label     Label5      {Frame1,    {.name = "Label5",  .place = {3840, 1200, 735, 435}, .caption = u"HEIGHT",     .shown = Shown::No, .look = headingLook}};

    Frame     Frame3      {form,      {.name = "Frame3", .place = {0, 7680, 5415, 1215}, .caption = u"GESTIONE NUOVO AEROPORTO", .shown = Shown::No, .look = {.weight = Weight::Bold}}};
    Button    cmdSave     {Frame3,    {.name = "cmdSave", .place = {120, 240, 975, 855}, .caption = u"&Salva Dati", .toolTip = u"Salva i dati introdotti", .picture = "save"}};
    Button    cmdReset    {Frame3,    {.name = "cmdReset", .place = {4200, 240, 975, 855}, .caption = u"&Azzera Dati", .toolTip = u"Azzera tutti i campi", .picture = "reset"}};
    Label     Label14     {Frame3,    {.name = "Label14", .place = {1200, 240, 2850, 930}, .caption = u"INSERISCI I DATI DELL'AEROPORTO E POI SALVA", .look = {Face::Arial, 9.75, Weight::Bold, colour::ink, QColor(255, 255, 0)}}};

    Frame     Frame5      {form,      {.name = "Frame5", .place = {0, 7680, 5415, 1215}, .caption = u"GESTIONE ATTIVITA'", .shown = Shown::No, .look = {.weight = Weight::Bold}}};
    Button    cmdGrafica  {Frame5,    {.name = "cmdGrafica", .place = {120, 240, 975, 855}, .caption = u"&Procedure", .toolTip = u"Vai alla procedura grafica", .picture = "grafica"}};
    Button    cmdStampa   {Frame5,    {.name = "cmdStampa", .place = {1200, 240, 975, 855}, .caption = u"&Stampa", .toolTip = u"Stampa il prospetto ", .picture = "stampa"}};
    Button    cmdAzzera   {Frame5,    {.name = "cmdAzzera", .place = {2280, 240, 975, 855}, .caption = u"&Azzera", .toolTip = u"Azzera tutti i campi", .picture = "azzera"}};
    Button    cmdInfo     {Frame5,    {.name = "cmdInfo", .place = {3360, 240, 855, 855}, .caption = u"&Info", .toolTip = u"Informazioni", .picture = "info"}};
    Button    cmdEsci     {Frame5,    {.name = "cmdEsci", .place = {4320, 240, 975, 855}, .caption = u"&Uscita", .toolTip = u"Uscita dall'applicazione", .picture = "esci"}};

    ServiceControl Agent  {form,      {.name = "Agent"}};
    struct Decorations { explicit Decorations(frmMainControls& all); } decorations {*this};
    Hint draftHint {form, {5520, 7755, 4665, 1020}, {.points = 9.75, .text = colour::ink, .background = colour::draft}}; // beside the commands of a new airport
    Hint searchHint {Frame1, {60, 1260, 4560, 960}, {.points = 9.75}}; // where the general data stand later
    Image     imgAeroporto {form,     {.name = "imgAeroporto", .place = {5400, 0, 4935, 8895}, .shown = Shown::No}};

    Menu      mnuLanguages {form,     {.name = "mnuLanguages", .caption = u"Lingua", .shown = Shown::No}};
    // clang-format on
};

} // namespace quarvel
