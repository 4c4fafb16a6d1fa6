// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/early_printer.h"
#include "host/window/jobs/result_page.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/printers/printer_box.h"
#include "host/window/printers/printer_picker.h"
#include "host/window/unavailable_page.h"
#include "host/window/waiting/wait_sign.h"
#include "host/window/waiting/waiting_page.h"
#include "platform/unique_fd.h"
#include "tests/integration/answers_fixture.h"
#include "tests/support/silent_socket.h"

#include <QComboBox>
#include <QFrame>
#include <QSettings>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>

using namespace host;
using namespace Qt::StringLiterals;

// The user's action, and the requests that the server must have received by then.
enum class Stage { Opening, Listing, Sending, Following };
enum class Way { GiveUp, Close };
Q_DECLARE_METATYPE(Stage)
Q_DECLARE_METATYPE(Way)

// The dialog with its bundle, while a print server, a device or a name server does not respond: the dialog's
// thread remains responsive, and the user can always stop waiting.
class WindowAnswersTest : public AnswersFixture
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { startServer(); }
    void init()
    {
        m_heart.emplace(std::chrono::milliseconds(longestGap));
        m_file = sourcePath("/demo/report.pdf");
    }
    void cleanup() { checkGap(); }
    void serverNeverAnswers_data();
    void serverNeverAnswers();
    void serverStopsAnswering_data();
    void serverStopsAnswering();
    void earlyRequestNeverAnswers_data();
    void earlyRequestNeverAnswers();
    void settingsFileNeverAnswers();
    void serverAnswersLate();
    void windowGoesBeforeTheAnswer_data();
    void windowGoesBeforeTheAnswer();
    void serverPauses();
    void deviceIsSilent_data();
    void deviceIsSilent();
    void printerArrivesWhileAPanelWaits();
    void manyQueuesLoad();
};

void WindowAnswersTest::serverNeverAnswers_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<QByteArray>("request"); // in the proxy's naming
    QTest::addColumn<Way>("way");
    QTest::addColumn<QString>("told"); // after the user stopped waiting
    const auto bothWays = [](const char *what, Stage stage, const char *request, const char *told = "") {
        QTest::addRow("%s, given up", what)
            << stage << QByteArray(request) << Way::GiveUp << QString::fromLatin1(told);
        QTest::addRow("%s, closed", what) << stage << QByteArray(request) << Way::Close << QString();
    };
    const char *canceled = "Printing was canceled.";
    bothWays("anything", Stage::Opening, "all");
    bothWays("destination", Stage::Opening, "000b");
    bothWays("PPD", Stage::Opening, "ppd");
    QTest::newRow("printer list") << Stage::Listing << QByteArray("4002") << Way::Close << QString();
    bothWays("queue", Stage::Sending, "000b", canceled);
    bothWays("making the job", Stage::Sending, "0005", canceled);
    bothWays("sending", Stage::Sending, "0006", canceled);
    bothWays("reading back", Stage::Sending, "0009",
             "It may print; look at the queue before printing again.");
    QTest::newRow("all from sending on, given up")
        << Stage::Sending << QByteArray("0006+") << Way::GiveUp
        << u"could not be canceled. Look at the queue before printing again."_s;
    QTest::newRow("following") << Stage::Following << QByteArray("0009") << Way::Close << QString();
}

void WindowAnswersTest::serverNeverAnswers()
{
    QFETCH(Stage, stage);
    QFETCH(QByteArray, request);
    QFETCH(Way, way);
    QFETCH(QString, told);
    const auto stall = [&] { return m_proxy->command("stall " + request); };
    const auto closed = [this] { return !m_window->isVisible(); };
    if (stage == Stage::Opening || stage == Stage::Listing)
        QVERIFY(stall());
    if (request == "0006+")
        lengthenDocument();
    m_heart->start();
    open(stage == Stage::Following ? u"halted"_s : u"office"_s);
    if (stage != Stage::Opening) {
        QTRY_VERIFY(m_window->session());
        if (stage == Stage::Sending)
            QVERIFY(stall());
    }
    if (stage == Stage::Sending || stage == Stage::Following)
        QTest::mouseClick(button(u"Print"_s), Qt::LeftButton);
    if (stage == Stage::Following) {
        QTRY_VERIFY(m_window->submission() && m_window->submission()->isAccepted());
        QVERIFY(stall());
    }
    QTRY_VERIFY(m_proxy->hasStalled());
    auto *waiting = find<WaitingPage>();
    if (stage == Stage::Opening || stage == Stage::Sending)
        QTRY_VERIFY(waiting->isVisible());
    if (way == Way::Close) {
        if (stage == Stage::Sending) // the first one ends the submission
            clickUntil(
                button(u"Cancel"_s), [&] { return !waiting->cancelButton()->isEnabled(); }, "cancel");
        clickUntil(button(stage == Stage::Following ? u"Close"_s : u"Cancel"_s), closed, "close");
        return;
    }
    if (stage == Stage::Opening) {
        clickUntil(
            waiting->cancelButton(), [&] { return find<UnavailablePage>()->isVisible(); }, "do not wait");
        QVERIFY(m_proxy->command("pass"));
        QTest::mouseClick(find<UnavailablePage>()->findChild<QPushButton *>(), Qt::LeftButton);
        QTRY_VERIFY(m_window->session());
        return;
    }
    clickUntil(
        waiting->cancelButton(), [&] { return !waiting->cancelButton()->isEnabled(); }, "cancel printing");
    QTRY_VERIFY_WITH_TIMEOUT(!waiting->isVisible(), 10'000);
    const QString text = m_window->findChild<MessageBar *>()->text() + find<ResultPage>()->text();
    QVERIFY2(text.trimmed().endsWith(told), qPrintable(text));
}

void WindowAnswersTest::serverStopsAnswering_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::addColumn<QByteArray>("request"); // in the proxy's naming
    QTest::addColumn<QString>("told");
    const QString silent = u"has stopped answering."_s;
    const QString look = u" Look at the queue before printing again."_s;
    QTest::newRow("PPD") << Stage::Opening << QByteArray("ppd") << silent;
    QTest::newRow("printer list") << Stage::Listing << QByteArray("4002") << QString();
    QTest::newRow("from making the job on")
        << Stage::Sending << QByteArray("0005+")
        << silent + u" An unfinished job may have been left at the print server."_s + look;
    QTest::newRow("from sending on") << Stage::Sending << QByteArray("0006+")
                                     << silent + u" The unfinished job %1 could not be canceled."_s + look;
}

// The user does not stop waiting: the window does, and reports it.
void WindowAnswersTest::serverStopsAnswering()
{
    QFETCH(Stage, stage);
    QFETCH(QByteArray, request);
    QFETCH(QString, told);
    QVERIFY(m_proxy->command("stall " + request));
    if (stage == Stage::Sending)
        lengthenDocument();
    m_heart->start();
    open(u"office"_s, stage == Stage::Sending ? &m_patient : &m_hasty);
    if (stage == Stage::Sending) {
        QTRY_VERIFY(m_window->session());
        QTest::mouseClick(button(u"Print"_s), Qt::LeftButton);
    }
    QTRY_VERIFY(m_proxy->hasStalled());
    // There is no second wait of the same length.
    QTRY_VERIFY_WITH_TIMEOUT(!platform::Background::isUnderWay(), 7'500);
    if (told.isEmpty()) // only the list is missing
        return;
    const auto text = [this] {
        return m_window->findChild<MessageBar *>()->text() + find<UnavailablePage>()->accessibleName() +
               find<ResultPage>()->text();
    };
    // The result is delivered after the work has ended.
    const auto isTold = [&] {
        const auto &submission = m_window->submission();
        return text().contains(
            submission ? QString(told).replace(u"%1"_s, QString::number(submission->job.id)) : told);
    };
    QTRY_VERIFY2(isTold(), qPrintable(text()));
}

void WindowAnswersTest::earlyRequestNeverAnswers_data()
{
    QTest::addColumn<QByteArray>("request"); // in the proxy's naming
    QTest::addColumn<QString>("next");
    QTest::newRow("destination, then the same printer") << QByteArray("all") << u"office"_s;
    QTest::newRow("destination, then another printer") << QByteArray("all") << u"halted"_s;
    QTest::newRow("PPD, then the same printer") << QByteArray("ppd") << u"office"_s;
    QTest::newRow("PPD, then another printer") << QByteArray("ppd") << u"halted"_s;
}

// Requests of the program's start that hang must not delay later ones.
void WindowAnswersTest::earlyRequestNeverAnswers()
{
    QFETCH(QByteArray, request);
    QFETCH(QString, next);
    QVERIFY(m_proxy->command("stall " + request));
    CupsPrintSystem system;
    system.setEarlyPrinter(std::make_shared<EarlyPrinter>(u"office"_s));
    m_heart->start();
    open(u"office"_s, &system);
    QTRY_VERIFY(m_proxy->hasStalled());
    auto *waiting = find<WaitingPage>();
    QTRY_VERIFY(waiting->isVisible());
    clickUntil(
        waiting->cancelButton(), [&] { return find<UnavailablePage>()->isVisible(); }, "do not wait");
    QVERIFY(m_proxy->command("stall nothing")); // else; the first request still waits
    Q_EMIT find<PrinterPicker>()->picked(next);
    QTRY_VERIFY(m_window->session());
    QCOMPARE(m_window->session()->destination().queue, next);
    m_window.reset();
    QVERIFY(m_proxy->command("pass"));
    QTRY_VERIFY(!platform::Background::isUnderWay()); // before the print system is destroyed
}

// As with a home folder that is temporarily unavailable.
void WindowAnswersTest::settingsFileNeverAnswers()
{
    const QString path = QSettings().fileName();
    const QString aside = path + u".aside"_s;
    const auto release = [&] {
        QVERIFY(QFile::rename(path, aside));
        const platform::UniqueFd writer(
            ::open(QFile::encodeName(aside).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
        QVERIFY(QFile::remove(aside));
        QVERIFY(writer); // a reader was waiting
    };
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile::remove(path);
    // opening it blocks until there is a writer
    QVERIFY(::mkfifo(QFile::encodeName(path).constData(), 0600) == 0);
    m_heart->start();
    open(QString());
    QTRY_VERIFY(find<WaitingPage>()->isVisible());
    QVERIFY(!m_window->session());
    release();
    QTRY_VERIFY(m_window->session());

    QVERIFY(::mkfifo(QFile::encodeName(path).constData(), 0600) == 0);
    open(u"office"_s);
    QTRY_VERIFY_WITH_TIMEOUT(find<PrinterBox>()->count() > manyQueues, 20'000);
    QTest::mouseClick(button(u"Print"_s), Qt::LeftButton);
    QTRY_VERIFY(m_window->submission() && m_window->submission()->isAccepted());
    release();
}

void WindowAnswersTest::serverAnswersLate()
{
    QVERIFY(m_proxy->command("delay 300"));
    m_heart->start();
    open();
    QTRY_VERIFY_WITH_TIMEOUT(m_window->session(), 10'000);
    QCOMPARE(m_window->focusWidget(), m_window->book()->list());
    QTRY_VERIFY_WITH_TIMEOUT(find<PrinterBox>()->count() > manyQueues, 10'000);
    QTest::mouseClick(button(u"Print"_s), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(m_window->submission() && m_window->submission()->isAccepted(), 10'000);
    QTRY_VERIFY_WITH_TIMEOUT(find<ResultPage>()->text().contains(u"done"_s), 10'000);
}

void WindowAnswersTest::windowGoesBeforeTheAnswer_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::newRow("opening") << Stage::Opening;
    QTest::newRow("sending") << Stage::Sending;
}

void WindowAnswersTest::windowGoesBeforeTheAnswer()
{
    QFETCH(Stage, stage);
    if (stage == Stage::Opening)
        QVERIFY(m_proxy->command("delay 300"));
    open();
    if (stage != Stage::Opening) {
        QTRY_VERIFY(m_window->session());
        QVERIFY(m_proxy->command("delay 300"));
        QTest::mouseClick(button(u"Print"_s), Qt::LeftButton);
    }
    QVERIFY(platform::Background::isUnderWay());
    m_window.reset();
}

void WindowAnswersTest::serverPauses()
{
    const auto pid = static_cast<pid_t>(m_server.processId());
    ::kill(pid, SIGSTOP);
    m_heart->start();
    open();
    QTRY_VERIFY(find<WaitingPage>()->isVisible());
    ::kill(pid, SIGCONT);
    QTRY_VERIFY(m_window->session());
    ::kill(pid, SIGSTOP);
    QTest::mouseClick(button(u"Print"_s), Qt::LeftButton);
    QTRY_VERIFY(find<WaitingPage>()->isVisible());
    ::kill(pid, SIGCONT);
    QTRY_VERIFY_WITH_TIMEOUT(m_window->submission() && m_window->submission()->isAccepted(), 10'000);
}

void WindowAnswersTest::deviceIsSilent_data()
{
    QTest::addColumn<QString>("queue");
    QTest::addColumn<QByteArray>("address"); // of the queried server
    QTest::addColumn<int>("port");
    QTest::newRow("device") << u"office"_s << QByteArray("127.0.0.2") << 161;
    QTest::newRow("name server") << u"attic"_s << QByteArray("127.0.0.53") << 53;
}

void WindowAnswersTest::deviceIsSilent()
{
    QFETCH(QString, queue);
    QFETCH(QByteArray, address);
    QFETCH(int, port);
    const SilentSocket silent(address.constData(), static_cast<quint16>(port));
    QVERIFY(silent.isBound());
    open(queue);
    QTRY_VERIFY(m_window->session());
    auto *list = m_window->book()->list();
    const int row = m_window->book()->pageNamed(u"color-settings-1"_s);
    // The wait runs within the click that started it; another click ends it.
    ThreadClock sinceGivenUp;
    QTimer impatience;
    connect(&impatience, &QTimer::timeout, this, [&] {
        QPushButton *stop = button(u"Do Not Wait"_s);
        if (!stop || !silent.wasAsked())
            return;
        impatience.stop();
        sinceGivenUp.restart();
        QTest::mouseClick(stop, Qt::LeftButton);
    });
    const auto clickAndGiveUp = [&](QWidget *target, const QPoint &place) {
        silent.forget();
        impatience.start(10);
        QTest::mouseClick(target, Qt::LeftButton, {}, place);
        const qint64 reaction = sinceGivenUp.milliseconds();
        QVERIFY(!impatience.isActive());
        DelayedRows::check(reaction, longestReaction, "stop waiting");
        QVERIFY(!find<QFrame>("unavailableNotice")->property("text").toString().isEmpty());
        QVERIFY(!button(u"Do Not Wait"_s));
    };
    m_heart->start();
    clickAndGiveUp(list, list->tabRect(row).center());
    QCOMPARE(m_window->book()->currentRow(), row);
    QVERIFY(!find<QPushButton>("presets")->text().contains(u"changed"_s)); // not by the user
    QVERIFY(m_window->session()->markChoice(u"ImageType"_s, u"Advanced"_s));
    auto *reload = find<QPushButton>("reloadButton");
    QTRY_VERIFY(reload->isVisible());
    clickAndGiveUp(reload, {});
}

// The waiting panel is destroyed with its session, but not while it is being called.
void WindowAnswersTest::printerArrivesWhileAPanelWaits()
{
    const SilentSocket silent("127.0.0.2", 161);
    QVERIFY(silent.isBound());
    open();
    QTRY_VERIFY(m_window->session());
    QTRY_VERIFY(!platform::Background::isUnderWay());
    QVERIFY(m_proxy->command("delay 100"));
    auto *list = m_window->book()->list();
    const int row = m_window->book()->pageNamed(u"color-settings-1"_s);
    QTimer giveUp;
    giveUp.setSingleShot(true);
    connect(&giveUp, &QTimer::timeout, this, [&] {
        QCOMPARE(m_window->session()->destination().queue, u"office"_s);
        m_window->print(); // like assistive technology, which bypasses the input filter
        QVERIFY(!find<WaitingPage>()->isVisible());
        QTest::mouseClick(button(u"Do Not Wait"_s), Qt::LeftButton);
    });
    giveUp.start(1500); // long after the answers
    Q_EMIT find<PrinterPicker>()->picked(u"halted"_s);
    QTest::mouseClick(list, Qt::LeftButton, {}, list->tabRect(row).center());
    QVERIFY(!giveUp.isActive());
    QTRY_COMPARE(m_window->session()->destination().queue, u"halted"_s);
    QVERIFY(m_proxy->command("delay 300"));
    const int now = m_window->book()->currentRow();
    Q_EMIT find<PrinterPicker>()->picked(u"office"_s);
    QTRY_VERIFY(find<WaitingPage>()->isVisible());
    QTest::keyClick(m_window.get(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(m_window->book()->currentRow(), now); // of pages that are not visible
}

void WindowAnswersTest::manyQueuesLoad()
{
    open();
    QTRY_VERIFY(m_window->session());
    QComboBox *box = find<PrinterBox>();
    QTRY_VERIFY_WITH_TIMEOUT(box->count() > manyQueues, 20'000);
    clickUntil(
        box, [] { return QApplication::activePopupWidget() != nullptr; }, "printer list");
    QTest::keyClicks(QApplication::focusWidget(), u"room 655"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTRY_COMPARE(m_window->session()->destination().queue, u"floor-655"_s);
}

int main(int argc, char **argv)
{
    return DelayedRows::exec<WindowAnswersTest>(argc, argv);
}

#include "window_answers_test.moc"
