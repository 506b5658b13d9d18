// What a resize step of the companion window is compared with: a plain window of another, lighter toolkit
// with as many controls (a menu bar with as many items, two scroll bars, a picture box with a picture's area
// and a hidden one in it), all resized in proportion by that toolkit. There is no picture in it: it could
// only be slower.

#include <FL/Fl.H>
#include <FL/Fl_Box.H>
#include <FL/Fl_Double_Window.H>
#include <FL/Fl_Group.H>
#include <FL/Fl_Menu_Bar.H>
#include <FL/Fl_Scrollbar.H>
#include <initializer_list>

namespace {

// Pixels, as the companion window has them on a screen of 96 dots an inch.
constexpr int width = 384;
constexpr int height = 431;
constexpr int menuHeight = 18;
constexpr int barWidth = 17;

void fillMenu(Fl_Menu_Bar& menu) {
    for (const char* item : {"&Applicazioni/&Aeroporto Scelto", "&Applicazioni/&Nuova Procedura",
                             "&Applicazioni/_&Procedura Scelta", "&Applicazioni/_&Ripristina",
                             "&Applicazioni/&Exit", "&SysTray/&Exit"})
        menu.add(item, 0, nullptr);
}

} // namespace

int main() {
    Fl_Double_Window window(width, height + menuHeight, "A plain window");
    Fl_Menu_Bar menu(0, 0, width, menuHeight);
    fillMenu(menu);
    Fl_Scrollbar horizontal(0, menuHeight + height - barWidth, width - barWidth, barWidth);
    horizontal.type(FL_HORIZONTAL);
    Fl_Scrollbar vertical(width - barWidth, menuHeight, barWidth, height - barWidth);
    Fl_Group frame(0, menuHeight, width - barWidth, height - barWidth);
    frame.box(FL_DOWN_FRAME);
    Fl_Box picture(2, menuHeight + 2, width - barWidth - 4, height - barWidth - 4);
    picture.box(FL_FLAT_BOX);
    picture.color(FL_WHITE);
    Fl_Box hidden(192, 168, 41, 49);
    hidden.hide();
    frame.end();
    window.end();
    for (Fl_Scrollbar* bar : {&horizontal, &vertical}) bar->value(20, 40, 0, 100);
    window.resizable(window);
    window.show();
    return Fl::run();
}
