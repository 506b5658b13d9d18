#include "support/test_program.h"

#include "archive/record_file.h"
#include "pictures/gif_maker.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QListView>

using namespace Qt::StringLiterals;

namespace quarvel {

TestProgram::TestProgram(const QString& surroundings)
    : surroundings_(surroundings.isEmpty() ? folder_.path() : surroundings) {
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7711)); // other users may pass
    QDir().mkpath(path(u"aeroporti"_s));
    for (const auto& file : {u"Italiano.lng"_s, u"English.lng"_s, u"LangSetting.ini"_s})
        QFile::copy(QStringLiteral(QUARVEL_DATA_FOLDER "/") + file, path(file));
}

void TestProgram::write(const QString& relative, const QByteArray& bytes) const {
    QDir().mkpath(path(relative).section(u'/', 0, -2));
    QFile file(path(relative));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write");
}

QByteArray TestProgram::read(const QString& relative) const {
    QFile file(path(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestProgram::addAirport(const QString& name) const {
    AirportRecord record;
    for (int position = 0; position < recordSize; ++position)
        record.values[static_cast<std::size_t>(position)] = u"V%1"_s.arg(position);
    record.values[IcaoCode] = name;
    const QString folder = u"aeroporti/"_s + name + u'/';
    for (const auto& part : {u"Sid"_s, u"Star"_s, u"Approach"_s, u"Aeroporto"_s})
        QDir().mkpath(path(folder + part));
    write(folder + u"Aeroporto/"_s + name + u".txt"_s, recordBytes(record, name).value());
    addChart(folder + u"Aeroporto/"_s + name + u".gif"_s, {20, 30});
}

void TestProgram::addChart(const QString& relative, QSize size) const {
    GifRecipe recipe{
        .screen = size, .place = QRect(QPoint(0, 0), size), .pixels = {}, .colours = {0xFFFFFF, 0}};
    recipe.pixels.assign(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()), 0);
    write(relative, makeGif(recipe));
}

void TestProgram::start() {
    program_ = std::make_unique<Program>(ProgramFolder{programFolder(), {}},
                                         Services{*asks, sounds, printer, urls, screen, end, beeper, icons},
                                         *presents);
    program_->show(WindowName::frmMain);
    if (!QTest::qWaitForWindowActive(mainWindow())) qFatal("the main window does not become active");
}

QWidget* TestProgram::front() const {
    for (QWidget* window : {companionWindow(), viewWindow()})
        if (window != nullptr) return window;
    return mainWindow();
}

void TestProgram::type(const QString& text) const {
    QTest::keyClicks(control(mainWindow(), u"txtNomeAeroporto"_s), text);
}

void TestProgram::clickRow(QWidget* window, const QString& list, int row) {
    auto* view = control<QListView>(window, list);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(row, 0)).center());
}

void TestProgram::click(QWidget* window, const QString& control) {
    QTest::mouseClick(TestProgram::control(window, control), Qt::LeftButton);
}

QStringList TestProgram::rows(QWidget* window, const QString& list) {
    const auto* model = control<QListView>(window, list)->model();
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row) texts.append(model->index(row, 0).data().toString());
    return texts;
}

void TestProgram::openAirport(const QString& airport) const {
    type(airport);
    clickRow(mainWindow(), u"lstWords"_s, 0);
}

void TestProgram::startWith(const QString& airport) {
    addAirport(airport);
    start();
    openAirport(airport);
}

void TestProgram::openViewer(const QString& airport) {
    openAirport(airport);
    click(mainWindow(), u"cmdGrafica"_s);
    if (!QTest::qWaitForWindowActive(viewWindow())) qFatal("the viewer does not become active");
}

void TestProgram::openCompanion() const {
    click(viewWindow(), u"Option1(0)"_s);
    clickRow(viewWindow(), u"List1"_s, 0);
    click(viewWindow(), u"Command4"_s);
    if (!QTest::qWaitForWindowActive(companionWindow())) qFatal("the companion does not become active");
}

void TestProgram::chooseItem(QWidget* window, const QString& item) {
    auto* action = window->findChild<QAction*>(item);
    if (action == nullptr || !action->isEnabled()) qFatal("item %s cannot be chosen", qPrintable(item));
    action->trigger();
}

} // namespace quarvel
