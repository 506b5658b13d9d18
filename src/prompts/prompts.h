#pragma once

#include "files/whole_file.h"
#include "forms/form.h"
#include "language/language_support.h"
#include "platform/form_printer.h"
#include "platform/message_boxes.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace quarvel {

/// What was being done when something went wrong: each is the number of the message that says so (110 for
/// "0110").
enum class Task {
    NameAirport = 110, ///< a name was typed for an airport
    ReadRecord = 111,  ///< an airport's data file
    MakeFolders = 112, ///< a new airport's folders
    ReadAirportPicture = 113,
    ListCharts = 114,
    ReadChart = 115,
    ShowChart = 116, ///< a chart too large for its scroll bars
    ReadNote = 117,
    SaveNotes = 118,
    ChooseChartFirst = 119, ///< notes were to be saved without a chart of the list on show
    FindPrinter = 120,
    Print = 121,
    SaveAirport = 122,          ///< a new airport's data file and presenter text file
    ReadLanguage = 123,         ///< the chosen language's file
    PrepareProgramFolder = 147, ///< at the start, from what the program was installed with
    UseState = 180,             ///< a file of what the program remembers; it was set aside
    KeepState = 181,            ///< the same, to be written
    KeepVersion = 182,          ///< the old self of a file that is being saved
    PasteText = 200,            ///< more was pasted or dropped than the box takes
    RememberLanguage = 220,     ///< the chosen language, in the setting file
    ShowChartInPart = 240,      ///< a chart of which rows are missing
    ShowAirportPictureInPart = 241,
    AskPrintingService = 250, ///< a printing service that does not answer; nothing was printed
    ConfirmPrint = 251,       ///< one that fell silent while it took the page
};

/// The window's own questions and messages, in the current language.
class Prompts {
public:
    Prompts(modLanguageSupport& language, MessageBoxes& boxes);

    /// Asks with the texts of two numbered messages, prompt and title. `detail` stands below the prompt.
    [[nodiscard]] Answer ask(Form& form, const QString& prompt, const QString& title, Buttons buttons,
                             BoxIcon icon, const QString& detail = {});
    /// Asks one of the program's own questions, to be answered Yes or No.
    [[nodiscard]] Answer askOwn(Form& form, const QString& prompt);
    /// One of the program's own texts about a file.
    [[nodiscard]] QString textOn(const QString& number, const QString& path);
    /// Asks what is to become of what these files hold and the user has not seen: Ok replaces it, Again shows
    /// it.
    [[nodiscard]] Answer askAboutUnseen(Form& form, const QStringList& paths);
    /// Shows a fixed text, titled with the application's name.
    void showFixed(Form& form, const QString& text);
    /// Tells what was being done, to which file, why it failed and what to do.
    void tell(Form& form, Task task, const Failure& failure);
    /// Tells what there is to tell of a save that succeeded, which is mostly nothing.
    void tellOf(Form& form, const Written& written);
    /// Tells what happened to a file, where there is nothing to be done about it.
    void tell(Form& form, Task task, const QString& path);
    /// Tells a refusal that concerns no file.
    void tell(Form& form, Task task);
    /// The same once what is going on has ended: a box in the middle of a drop would hold up its source.
    void tellSoon(Form& form, Task task);

    /// Prints a window as it looks now, behind, and tells when that could not be done: on the window, or on
    /// the one in front when it has gone meanwhile.
    void printWindow(Form& form, FormPrinter& printer);

private:
    [[nodiscard]] QString text(const QString& number);
    [[nodiscard]] ButtonCaptions captions();
    void tellPrinted(Form& form, PrintOutcome outcome);
    [[nodiscard]] Answer show(Form& form, const MessageBox& box);
    void showOwn(Form& form, const QString& text);

    modLanguageSupport& language_;
    MessageBoxes& boxes_;
    QObject life_; ///< who still prints may tell nobody once this is gone
};

} // namespace quarvel
