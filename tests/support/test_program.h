#pragma once

#include "archive/record.h"
#include "shell/program.h"
#include "support/recording_services.h"

#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <memory>

namespace quarvel {

/// The whole program on a program folder of its own, with a user at the keys and services that keep what
/// reached them.
class TestProgram {
public:
    /// A program folder with both shipped language files, Italian chosen, and an empty archive: in a folder
    /// of its own, or in an empty one that is given.
    explicit TestProgram(const QString& surroundings = {});

    [[nodiscard]] QString programFolder() const { return surroundings_ + QStringLiteral("/Quarvel"); }
    [[nodiscard]] QString path(const QString& relative) const { return programFolder() + u'/' + relative; }
    void write(const QString& relative, const QByteArray& bytes) const;
    [[nodiscard]] QByteArray read(const QString& relative) const;

    /// An airport with a data file and a small picture; its ICAO code is its name.
    void addAirport(const QString& name) const;
    /// A white chart of a size, such as "aeroporti/LIRF/Sid/KENN1.gif".
    void addChart(const QString& relative, QSize size) const;

    /// Starts the program: its main window is shown and active.
    void start();
    /// Takes the program away with its windows, as the end of its process would.
    void stop() { program_.reset(); }
    [[nodiscard]] Program& program() { return *program_; }

    /// The windows; null while it is not loaded.
    [[nodiscard]] QWidget* mainWindow() const { return program_->mainWindow().window(); }
    [[nodiscard]] QWidget* viewWindow() const { return program_->viewWindow().window(); }
    [[nodiscard]] QWidget* companionWindow() const { return program_->companionWindow().window(); }

    /// A control of a window by its name, such as txtRwy(38).
    template <class Widget = QWidget>
    [[nodiscard]] static Widget* control(QWidget* window, const QString& name) {
        auto* found = window->findChild<Widget*>(name);
        if (found == nullptr) qFatal("no control %s", qPrintable(name));
        return found;
    }

    /// The same of the window in front: the companion, the viewer or the main window.
    template <class Widget = QWidget>
    [[nodiscard]] Widget* control(const QString& name) const {
        return control<Widget>(front(), name);
    }
    void clickRow(const QString& list, int row) const { clickRow(front(), list, row); }
    void click(const QString& name) const { click(front(), name); }
    [[nodiscard]] QStringList rows(const QString& list) const { return rows(front(), list); }

    /// Types a name in the name box, key by key.
    void type(const QString& text) const;
    /// Clicks a row of a list.
    static void clickRow(QWidget* window, const QString& list, int row);
    static void click(QWidget* window, const QString& control);
    static QStringList rows(QWidget* window, const QString& list);
    /// Types an airport's name and chooses the first row of the list.
    void openAirport(const QString& airport) const;
    /// The program with one airport, started and showing it.
    void startWith(const QString& airport);
    /// Opens an airport from the list and goes to the viewer.
    void openViewer(const QString& airport);
    /// Chooses the first departure in the viewer and links it to the companion window.
    void openCompanion() const;
    /// Chooses an item of a window's menus by its name.
    static void chooseItem(QWidget* window, const QString& item);

    ScriptedMessageBoxes boxes;
    SilentSounds sounds;
    PaperlessPrinter printer;
    NotedUrls urls;
    FixedScreen screen;
    NotedEnd end;
    CountedBeeps beeper;
    NotedIcons icons;
    NotedPresenter presenter;
    // Who does it in the program that start() makes.
    Presenter* presents = &presenter;
    MessageBoxes* asks = &boxes;

private:
    [[nodiscard]] QWidget* front() const;

    QTemporaryDir folder_;
    QString surroundings_;
    std::unique_ptr<Program> program_;
};

} // namespace quarvel
