#pragma once

#include "forms/image.h"
#include "forms/menu.h"
#include "forms/picture_box.h"
#include "forms/scroll_control.h"

namespace quarvel {

/// The companion window's controls, a row each, in the order of its control list: name, place in twips inside
/// the container (left, top, width, height), initial state. Earlier rows stand in front of later ones.
struct frmFS9Controls {
    explicit frmFS9Controls(Container& window) : form(window) {}

    Container& form;

    // clang-format off
    ScrollControl HScroll1 {form,     {.name = "HScroll1", .place = {0, 6240, 5775, 255}}, Qt::Horizontal};
    ScrollControl VScroll1 {form,     {.name = "VScroll1", .place = {5520, 0, 255, 6255}}, Qt::Vertical};
    PictureBox    Picture1 {form,     {.name = "Picture1", .place = {-120, 0, 5655, 6495}, .look = {.background = colour::paper}}, scalePixels};
    Image         Image2   {Picture1, {.name = "Image2", .place = {2880, 2520, 615, 735}, .shown = Shown::No}};
    Image         Image1   {Picture1, {.name = "Image1", .place = {120, 0, 1260, 1410}, .usable = Usable::No}};

    Menu          mApps         {form, {.name = "mApps", .caption = u"&Applicazioni"}};
    MenuItem      mnuAeroporto  {form, {.name = "mnuAeroporto", .caption = u"&Aeroporto Scelto"}, mApps.menu()};
    MenuItem      mnuNuovaproc  {form, {.name = "mnuNuovaproc", .caption = u"&Nuova Procedura"}, mApps.menu()};
    MenuItem      mnuProcScelta {form, {.name = "mnuProcScelta", .caption = u"&Procedura Scelta", .usable = Usable::No}, mApps.menu()};
    MenuItem      mSpazio       {form, {.name = "mSpazio", .caption = u"-"}, mApps.menu()};
    MenuItem      mnuRipris     {form, {.name = "mnuRipris", .caption = u"&Ripristina", .usable = Usable::No}, mApps.menu()};
    MenuItem      mSpazio2      {form, {.name = "mSpazio2", .caption = u"-"}, mApps.menu()};
    MenuItem      mPopExit      {form, {.name = "mPopExit", .caption = u"&Exit"}, mApps.menu()};
    Menu          mPopupSys     {form, {.name = "mPopupSys", .caption = u"&SysTray", .shown = Shown::No}};
    // clang-format on
};

} // namespace quarvel
