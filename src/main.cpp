#include "files/whole_file.h"
#include "forms/look.h"
#include "install/program_folder.h"
#include "install/starter.h"
#include "platform/beside.h"
#include "platform/desktop_notification_area.h"
#include "platform/fitted_application.h"
#include "platform/painting_thread.h"
#include "platform/services.h"
#include "platform/window_system.h"
#include "presenter/airport_presenter.h"
#include "presenter/voice/espeak_voice.h"
#include "shell/program.h"

#include <QApplication>
#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    quarvel::outliveSizeLimits();
    quarvel::chooseWindowSystem();
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
    return QApplication::exec();
}
