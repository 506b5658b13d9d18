#include "cli/run.h"
#include "files/whole_file.h"
#include "forms/look.h"
#include "install/program_folder.h"
#include "install/starter.h"
#include "platform/beside.h"
#include "platform/desktop_notification_area.h"
#include "platform/end_signals.h"
#include "platform/fitted_application.h"
#include "platform/painting_thread.h"
#include "platform/services.h"
#include "platform/session_bus.h"
#include "platform/window_system.h"
#include "presenter/airport_presenter.h"
#include "presenter/voice/espeak_voice.h"
#include "shell/program.h"

#include <QApplication>
#include <QFile>
#include <QSessionManager>
#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Carries out what the words behind the program's name ask for; none when they ask for the windows.
std::optional<int> runCommandLine(int argc, char** argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i) words.append(QFile::decodeName(argv[i]));
    const quarvel::CommandLine command = quarvel::readCommandLine(words);
    if (command.deed == quarvel::CommandLine::Deed::Start) return std::nullopt;
    int nameOnly = 1;
    const QCoreApplication application(nameOnly, argv);
    return quarvel::runCommand(command, quarvel::findProgramFolder(QCoreApplication::applicationDirPath()));
}

} // namespace

int main(int argc, char** argv) {
    quarvel::outliveSizeLimits();
    if (const std::optional<int> status = runCommandLine(argc, argv)) return *status;
    quarvel::chooseWindowSystem();
    quarvel::leaveSilentSessionBus();
    quarvel::settleEnvironment();
    quarvel::Beside fontList(quarvel::readFontList);
    quarvel::FittedApplication application(argc, argv);
    fontList.finish();
    application.fit(quarvel::Program::largestWindow());
    if (!quarvel::keepPaintingThread()) {
        qCritical("Quarvel: there is not enough memory to start.");
        return EXIT_FAILURE;
    }
    const quarvel::Beside faces(quarvel::findFaces);
    QApplication::setApplicationName(u"Quarvel"_s);
    QApplication::setDesktopFileName(u"quarvel"_s);
    // The toolkit's own command to start again at the next login holds an option, which is refused.
    QObject::connect(&*application, &QGuiApplication::saveStateRequest, [](QSessionManager& session) {
        session.setRestartCommand({QApplication::applicationFilePath()});
    });
    QApplication::setQuitOnLastWindowClosed(false); // windows that wait behind others are only hidden
    quarvel::applyProgramLook(*application);

    const quarvel::ProgramFolder folder = quarvel::findProgramFolder(QApplication::applicationDirPath());
    const quarvel::Result<void> laidOut = quarvel::layOutProgramFolder(folder);

    quarvel::QtMessageBoxes messageBoxes;
    quarvel::DesktopSoundPlayer sounds;
    quarvel::QtFormPrinter printer;
    quarvel::QtUrlOpener urls;
    quarvel::QtScreen screen;
    quarvel::RealProcessEnd process([&printer] { printer.finish(); });
    quarvel::QtBeeper beeper;
    quarvel::DesktopNotificationArea notificationArea;
    quarvel::AirportPresenter presenter([] { return std::make_unique<quarvel::EspeakVoice>(); });
    quarvel::Program program(
        folder, {messageBoxes, sounds, printer, urls, screen, process, beeper, notificationArea}, presenter);
    if (!laidOut) program.tell(quarvel::Task::PrepareProgramFolder, laidOut.failure());
    program.show(quarvel::WindowName::frmMain);
    const quarvel::EndSignals requests([&program] { program.end(); });
    QObject::connect(&*application, &QGuiApplication::commitDataRequest, [&program] { program.flush(); });
    QApplication::exec();
    program.end(); // like its own button: no thread behind may outlive what it works with
}
