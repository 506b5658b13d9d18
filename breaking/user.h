#pragma once

#include <QString>
#include <QStringList>

namespace breaking {

/// What is saved: a record where none is or over one that came meanwhile, notes over three files or over two
/// and a new one, a language. Each has a way to the window from which that is done, and the last click.
enum class Saving { NewRecord, Record, Notes, NewNotes, Language };

/// Goes all the way up to the click that saves, with windows on the screen and everything typed. The program
/// folder holds the airport LIRF with a departure.
void prepare(Saving what);
/// The click, and the answers to all boxes that follow. `boxes` gets the text of each as it appears: the
/// program may end before this returns.
void save(Saving what, QStringList& boxes);

} // namespace breaking
