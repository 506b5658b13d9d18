#include "platform/print_queue.h"

#include <QApplication>
#include <QLibrary>
#include <QSemaphore>
#include <QTest>
#include <memory>

using namespace quarvel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A printing service that answers when it is let, and what it printed.
struct SlowService {
    QSemaphore answers, takes;
    QSemaphore asked, begun, ended;
    QStringList printed;

    PrintOutcome print(const QString& title, const std::function<bool()>& mayBegin) {
        asked.release();
        answers.acquire();
        const bool begins = mayBegin();
        if (begins) {
            begun.release();
            takes.acquire();
            printed.append(title);
        }
        ended.release();
        return begins ? PrintOutcome::Printed : PrintOutcome::Failed;
    }
};

class PrintingTest : public QObject {
    Q_OBJECT

    std::shared_ptr<SlowService> service = std::make_shared<SlowService>();
    QList<PrintOutcome> told;

    [[nodiscard]] std::unique_ptr<PrintQueue> queue(std::chrono::milliseconds patience) const {
        return std::make_unique<PrintQueue>(
            [service = service](const QImage&, const QString& title, const std::function<bool()>& mayBegin) {
                return service->print(title, mayBegin);
            },
            patience);
    }
    void add(PrintQueue& pages, const QString& title) {
        pages.add({QImage(), title}, [this](PrintOutcome outcome) { told.append(outcome); });
    }

private Q_SLOTS:
    void init() {
        service = std::make_shared<SlowService>();
        told.clear();
    }

    void nobodyWaitsAndEachPageIsPrintedOnceInOrder() {
        const auto pages = queue(PrintQueue::usualPatience);
        add(*pages, u"1"_s);
        add(*pages, u"2"_s);
        QVERIFY(told.isEmpty());
        service->answers.release(2);
        service->takes.release(2);
        QTRY_COMPARE(told, QList<PrintOutcome>(2, PrintOutcome::Printed));
        QCOMPARE(service->printed, QStringList({u"1"_s, u"2"_s}));
    }

    void whatIsGivenUpIsToldOnceAndNeverPrinted() {
        const auto pages = queue(0ms);
        add(*pages, u"1"_s);
        add(*pages, u"2"_s);
        service->asked.acquire();
        QTRY_COMPARE(told, QList<PrintOutcome>{PrintOutcome::NoAnswer});
        service->answers.release(2); // the service comes back
        service->takes.release(2);
        service->ended.acquire();
        QTest::qWait(0);
        QVERIFY(service->printed.isEmpty());
        QCOMPARE(told.size(), 1);
    }

    void aPageThatWasBeingTakenIsNotCalledUnprinted() {
        const auto pages = queue(0ms);
        service->answers.release();
        add(*pages, u"1"_s);
        service->begun.acquire();
        QTRY_COMPARE(told, QList<PrintOutcome>{PrintOutcome::Unconfirmed});
        service->takes.release();
    }

    void atTheEndOfTheProgramWhatIsNotBegunIsGivenUp() {
        auto pages = queue(PrintQueue::usualPatience);
        add(*pages, u"1"_s);
        service->asked.acquire();
        pages.reset();
        service->answers.release();
        service->takes.release();
        service->ended.acquire();
        QVERIFY(service->printed.isEmpty());
    }

    void noServiceIsNotCalledNoPrinter() {
        qputenv("CUPS_SERVER", "/nowhere/socket");
        const auto print = reinterpret_cast<PrintOnDefaultPrinter>(
            QLibrary::resolve(QStringLiteral(PRINTING_LIBRARY), printOnDefaultPrinterName));
        QVERIFY(print != nullptr);
        const QImage picture(1, 1, QImage::Format_RGB32);
        QVERIFY(print(picture, u"page"_s, [] { return true; }) == PrintOutcome::NoAnswer);
    }
};

QTEST_MAIN(PrintingTest)
#include "tst_printing.moc"
