#pragma once

#include "forms/button.h"
#include "forms/control_array.h"
#include "forms/file_list_box.h"
#include "forms/frame.h"
#include "forms/hint.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/picture_box.h"
#include "forms/scroll_control.h"
#include "forms/text_box.h"

namespace quarvel {

/// The chart viewer's controls, a row each, in the order of its control list: name, place in twips inside the
/// container (left, top, width, height), built-in texts, initial state. Earlier rows stand in front of later
/// ones.
struct frmViewControls {
    explicit frmViewControls(Container& window);

    Container& form;
    ControlArray<OptionButton> Option1; ///< SID, STAR, APPROACH

    static constexpr Look bold{.weight = Weight::Bold};
    static constexpr Look notesLook{Face::Arial, 9.75, Weight::Normal, QColor(0, 0, 0),
                                    QColor(255, 255, 255)};
    static constexpr Look listLook{Face::Arial, 9.75, Weight::Bold, QColor(0, 0, 0), QColor(255, 255, 255)};
    static constexpr Look countLook{Face::TimesNewRoman, 12, Weight::Bold, colour::ink, colour::window};

    // clang-format off
    FileListBox  File1     {form,     {.name = "File1", .place = {3600, 2160, 1215, 480}, .shown = Shown::No}};

    Frame        frame6    {form,     {.name = "frame6", .place = {0, 7680, 5415, 1215}, .caption = u"GESTIONE ATTIVITA'", .usable = Usable::No, .look = bold}};
    Button       cmdSave   {frame6,   {.name = "cmdSave", .place = {2400, 360, 855, 735}, .caption = u"&Salva Dati", .toolTip = u"Salva i dati della procedura che hai inserito sopra", .picture = "save"}};
    Button       Command3  {frame6,   {.name = "Command3", .place = {3360, 360, 735, 735}, .caption = u"&Uscita", .toolTip = u"Ritorno al form principale", .picture = "uscita"}};
    Button       Command1  {frame6,   {.name = "Command1", .place = {840, 360, 615, 735}, .caption = u"Zoom IN", .toolTip = u"Zoom In", .picture = "zoom_in"}};
    Button       Command2  {frame6,   {.name = "Command2", .place = {120, 360, 615, 735}, .caption = u"Zoom Out", .toolTip = u"Zoom Out", .picture = "zoom_out"}};
    Button       Command4  {frame6,   {.name = "Command4", .place = {4200, 360, 975, 735}, .caption = u"&Link FS", .toolTip = u"Link a Flight Simulator", .usable = Usable::No, .picture = "link_fs"}};
    Button       cmdStampa {frame6,   {.name = "cmdStampa", .place = {1560, 360, 735, 735}, .caption = u"&Stampa", .toolTip = u"Stampa il prospetto ", .picture = "stampa"}};

    PictureBox   Picture1  {form,     {.name = "Picture1", .place = {5400, -240, 5955, 9165}, .look = {.background = colour::paper}}, scalePixels};
    ScrollControl HScroll1 {Picture1, {.name = "HScroll1", .place = {0, 8880, 5895, 255}}, Qt::Horizontal};
    ScrollControl VScroll1 {Picture1, {.name = "VScroll1", .place = {5640, 0, 255, 8895}}, Qt::Vertical};
    Hint         chartHint {Picture1, {120, 3600, 5400, 1500}, {.points = 9.75}}; // until the first chart
    Image        Image1    {Picture1, {.name = "Image1", .place = {120, 0, 1260, 1410}, .usable = Usable::No}};

    Frame            Frame4 {form,    {.name = "Frame4", .place = {-120, 6240, 5535, 1455}, .look = bold}};
    MultiLineTextBox Text3  {Frame4,  {.name = "Text3", .place = {120, 240, 5295, 1005}, .look = notesLook, .align = Qt::AlignLeft}};
    Frame            Frame3 {form,    {.name = "Frame3", .place = {0, 4800, 5415, 1455}, .look = bold}};
    MultiLineTextBox Text1  {Frame3,  {.name = "Text1", .place = {0, 240, 5295, 1125}, .look = notesLook, .align = Qt::AlignLeft}};
    Frame            Frame1 {form,    {.name = "Frame1", .place = {0, 3600, 5415, 1215}, .look = bold}};
    MultiLineTextBox Text2  {Frame1,  {.name = "Text2", .place = {0, 240, 5295, 915}, .look = notesLook, .align = Qt::AlignLeft}};

    ListBox      List1      {form,    {.name = "List1", .place = {0, 960, 5415, 2220}, .look = listLook}};
    Frame        Frame2     {form,    {.name = "Frame2", .place = {0, 0, 5415, 975}, .caption = u"SCELTA PROCEDURE", .look = bold}};
    struct Options { explicit Options(frmViewControls& all); } options {*this};
    Label        lblTotProc {form,    {.name = "lblTotProc", .place = {0, 3120, 5415, 450}, .caption = u" ", .look = countLook}};
    // clang-format on
};

} // namespace quarvel
