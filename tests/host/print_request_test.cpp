// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_tools.h"
#include "host/session/chosen_settings.h"
#include "host/session/setting_keys.h"
#include "host/window/jobs/result_page.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/document_box.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/printers/printer_picker.h"
#include "host/window/waiting/waiting_page.h"
#include "platform/choice_box.h"
#include "tests/host/window_fixture.h"
#include "tests/support/paths.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRadioButton>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/stat.h>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

// Delays opening a printer's PPD until it is released.
class GatedPrintSystem : public FakePrintSystem
{
public:
    std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) override
    {
        if (destination.queue == gated)
            gate.acquire();
        return FakePrintSystem::ppd(destination, error);
    }
    QString gated; // queue
    QSemaphore gate;
};

} // namespace

// The checks, questions and pending requests of the window between the user's request to print and the job.
class PrintRequestTest : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        WindowFixture::init();
        m_release = std::make_shared<QSemaphore>();
    }
    void everyWayToPrintIsChecked_data();
    void everyWayToPrintIsChecked();
    void documentThatCannotBePrintedIsNotSent_data();
    void documentThatCannotBePrintedIsNotSent();
    void nothingIsPrintedWhileAPdfIsSaved();
    void printingFollowsAWait_data();
    void printingFollowsAWait();
    void escapeLeavesThingsAsTheyAre_data();
    void escapeLeavesThingsAsTheyAre();
    void missingMediaIsMentionedOnce();
    void earlierJobCounts();
    void pdfResultWaitsForThePages();
    void failedActionGoesWithTheNextNews();
    void pagesGoWhileTheyAreLaidOut();

private:
    void makeConflict()
    {
        m_window->session()->markChoice(u"ColorType"_s, u"Mono"_s);
        m_window->session()->markChoice(u"Cyan"_s, u"2"_s);
    }
    // A panel that blocks when it is restored, until `m_release` is released or the user stops waiting.
    FakePanel *addSlowPanel();
    bool pressIn(MessageBar *bar, const QString &text) const;
    void beginSaving(const QString &target);

    std::shared_ptr<QSemaphore> m_release;
};

FakePanel *PrintRequestTest::addSlowPanel()
{
    DialogSession *session = m_window->session();
    auto made = std::make_unique<FakePanel>(u"Colour"_s, QStringList(u"ColorType"_s), session);
    FakePanel *panel = made.get();
    new QLineEdit(panel->panelView());
    panel->onRestore = [panel, release = m_release] {
        const platform::BlockingWork work(panel->panelHost, u"Asking the printer…"_s);
        platform::Background::call([release] { release->acquire(); });
    };
    platform::PrintDialogPanels panels;
    panels.push_back(std::move(made));
    adoptPanels(session, std::move(panels));
    m_window->showSession();
    m_window->book()->showPage(0);
    return panel;
}

bool PrintRequestTest::pressIn(MessageBar *bar, const QString &text) const
{
    for (QPushButton *button : bar->buttons()) {
        if (button->text().remove(u'&') == text) {
            button->click();
            return true;
        }
    }
    return false;
}

void PrintRequestTest::everyWayToPrintIsChecked_data()
{
    QTest::addColumn<bool>("anyway");
    QTest::addColumn<QString>("range"); // null if all documents are deselected instead
    for (const bool anyway : {false, true}) {
        const QByteArray way = anyway ? "Print Anyway, " : "Print, ";
        QTest::newRow(way + "nonsense") << anyway << u"3-1"_s;
        QTest::newRow(way + "empty range") << anyway << u""_s;
        QTest::newRow(way + "no document") << anyway << QString();
    }
}

void PrintRequestTest::everyWayToPrintIsChecked()
{
    QFETCH(bool, anyway);
    QFETCH(QString, range);
    PrintTask task;
    task.files = {m_document.fileName(), m_document.fileName()};
    show(task, {}, false);
    if (anyway) {
        makeConflict();
        printButton()->click();
        QVERIFY(m_window->findChild<MessageBar *>()->isShowing());
    }
    if (range.isNull()) {
        auto *documents = find<DocumentBox>();
        for (int row = 0; row < documents->count(); ++row)
            documents->item(row)->setCheckState(Qt::Unchecked);
    } else {
        for (auto *radio : m_window->findChildren<QRadioButton *>())
            radio->click();
        QTest::keyClicks(m_window->findChild<QLineEdit *>(u"page-ranges"_s), range);
    }
    if (anyway)
        QVERIFY(pressIn(m_window->findChild<MessageBar *>(), u"Print Anyway"_s));
    else
        printButton()->click();
    settle();
    QVERIFY(m_system.submitted.isEmpty());
    QVERIFY(m_window->book()->isVisible());
}

void PrintRequestTest::documentThatCannotBePrintedIsNotSent_data()
{
    QTest::addColumn<bool>("fromPipe");
    QTest::addColumn<QStringList>("protection"); // as qpdf takes it; empty for a file that is cut off
    QTest::addColumn<bool>("raw");               // goes to the printer as it is
    QTest::addColumn<QString>("problem");        // null where it is printed
    const QString broken = u"it is damaged or not complete"_s, secret = u"it needs a password"_s;
    const QStringList password{u"open"_s, u"owner"_s, u"256"_s}, printing{u""_s, u"owner"_s, u"256"_s};
    QTest::newRow("cut off") << false << QStringList() << false << broken;
    QTest::newRow("cut off, from a pipe") << true << QStringList() << false << broken;
    QTest::newRow("password") << false << password << false << secret;
    QTest::newRow("no right to print") << false << printing + QStringList(u"--print=none"_s) << false
                                       << u"its author does not allow it to be printed"_s;
    QTest::newRow("with a right to print") << false << printing << false << QString();
    QTest::newRow("password, for the printer") << false << password << true << QString();
}

void PrintRequestTest::documentThatCannotBePrintedIsNotSent()
{
    QFETCH(bool, fromPipe);
    QFETCH(QStringList, protection);
    QFETCH(bool, raw);
    QFETCH(QString, problem);
    for (const char *program : {"pdfinfo", "pdftopdf", "qpdf"}) {
        if (PageTools::installed().path(QString::fromLatin1(program)).isEmpty())
            QSKIP("poppler-utils, cups-filters or qpdf is not installed");
    }
    const QTemporaryDir folder;
    const QString report = sourcePath("/demo/report.pdf");
    QString path = folder.filePath(u"letter.pdf"_s);
    if (protection.isEmpty())
        QVERIFY(QFile::copy(report, path) && QFile::resize(path, 300));
    else
        QCOMPARE(QProcess::execute(u"qpdf"_s, QStringList(u"--encrypt"_s) + protection +
                                                  QStringList{u"--"_s, report, path}),
                 0);
    QProcess writer;
    if (fromPipe) {
        const QString pipe = folder.filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        writer.start(u"sh"_s, {u"-c"_s, u"cat '%1' >'%2'"_s.arg(path, pipe)});
        path = pipe;
    }
    PrintTask task;
    task.files = {path};
    show(task, {}, false);
    PrintError error;
    if (raw)
        QVERIFY(::host::choose(m_window->session(), {u"raw"_s, u"true"_s, ChosenSetting::Kind::JobOption},
                               &error));
    printButton()->click();
    settle();
    QCOMPARE(m_system.submitted.size(), problem.isNull() ? 1 : 0);
    QVERIFY2(problem.isNull() || m_window->findChild<MessageBar *>()->text().contains(problem),
             qPrintable(m_window->findChild<MessageBar *>()->text()));
    QCOMPARE(m_window->book()->isVisible(), !problem.isNull()); // to choose again
    writer.waitForFinished();
}

void PrintRequestTest::beginSaving(const QString &target)
{
    Q_EMIT m_window->book()->savePdfWanted();
    auto *dialog = find<QFileDialog>();
    QVERIFY(dialog);
    Q_EMIT dialog->fileSelected(target);
    dialog->reject();
}

void PrintRequestTest::nothingIsPrintedWhileAPdfIsSaved()
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"pipe"_s);
    QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
    PrintTask task;
    task.files = {pipe};
    show(task, {}, false);
    makeConflict();
    printButton()->click();
    beginSaving(folder.filePath(u"saved.pdf"_s));
    QVERIFY(pressIn(m_window->findChild<MessageBar *>(), u"Print Anyway"_s));
    QVERIFY(m_window->book()->isVisible() && !find<WaitingPage>()->isVisible());
    QFile writer(pipe);
    QVERIFY(writer.open(QIODevice::WriteOnly) && writer.write("some text\n") > 0);
    writer.close();
    QTRY_VERIFY(printButton()->isEnabled());
    settle();
    QVERIFY(m_system.submitted.isEmpty());
}

// The user may print nevertheless.
void PrintRequestTest::missingMediaIsMentionedOnce()
{
    const QByteArray sizes = "*PaperDimension A4: \"595 842\"\n*PaperDimension A3: \"842 1191\"\n"
                             "*ImageableArea A4: \"0 0 595 842\"\n*ImageableArea A3: \"0 0 842 1191\"\n";
    m_system.ppds[u"office"_s] += sizes;
    m_system.report = DeviceReport{{}, {}, {{{}, {}, u"A4"_s, 210, 297}}, QDateTime::currentDateTime()};
    PrintWindow &window = open();
    MessageBar *bar = window.findChild<MessageBar *>();
    QVERIFY(!bar->isShowing());
    choose(u"PageSize"_s, u"A3"_s);
    QCOMPARE(bar->text(), u"Paper not loaded in the printer\n“A3” is not loaded in any tray."_s);
    bar->buttons().first()->click();
    choose(u"MediaType"_s, u"Thick"_s);
    QVERIFY(!bar->isShowing()); // closed, and the same is missing
    choose(u"PageSize"_s, u"A4"_s);
    choose(u"PageSize"_s, u"A3"_s);
    QVERIFY(bar->isShowing());
    window.print();
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
}

enum class Way { Click, Return, Shortcut };
enum class End { Answer, DoNotWait, Escape };
Q_DECLARE_METATYPE(Way)
Q_DECLARE_METATYPE(End)

void PrintRequestTest::printingFollowsAWait_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<End>("end");
    QTest::newRow("click, answered") << Way::Click << End::Answer;
    QTest::newRow("Return, answered") << Way::Return << End::Answer;
    QTest::newRow("Ctrl+P, answered") << Way::Shortcut << End::Answer;
    QTest::newRow("click, not waited for") << Way::Click << End::DoNotWait;
    QTest::newRow("Return, taken back") << Way::Return << End::Escape;
}

void PrintRequestTest::printingFollowsAWait()
{
    QFETCH(Way, way);
    QFETCH(End, end);
    PrintWindow &window = open();
    FakePanel *panel = addSlowPanel();
    window.book()->list()->setFocus();
    bool seen = false;
    QTimer::singleShot(0, &window, [&] {
        // The panel's page is shown at once with the reason of the wait, and is disabled.
        QVERIFY(panel->panelView()->isVisible() && !panel->panelView()->isEnabled());
        const auto labels = window.book()->findChildren<QLabel *>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->isVisible() && label->text() == u"Asking the printer…"_s;
        }));
        for (int i = 0; i < 2; ++i) { // printing twice prints once
            if (way == Way::Click)
                QTest::mouseClick(printButton(), Qt::LeftButton);
            else if (way == Way::Return)
                QTest::keyClick(window.focusWidget(), Qt::Key_Return);
            else
                QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
        }
        const auto signs = window.findChildren<QLabel *>();
        QVERIFY(std::any_of(signs.begin(), signs.end(), [](const QLabel *label) {
            return label->text().endsWith(u"The document will be printed when the printer has responded."_s);
        }));
        QVERIFY(m_system.submitted.isEmpty());
        QVERIFY(!window.isSettled()); // for a screenshot
        seen = true;
        if (end == End::Answer)
            m_release->release();
        else if (end == End::Escape)
            QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
        else
            QTRY_VERIFY(([&] {
                for (auto *button : window.findChildren<QPushButton *>()) {
                    if (button->isVisible() && button->text().remove(u'&') == u"Do Not Wait"_s) {
                        button->click();
                        return true;
                    }
                }
                return false;
            })());
    });
    QTimer::singleShot(10'000, &window, [this] { m_release->release(); }); // if a check has failed
    window.book()->showPage(1);
    m_release->release();
    settle();
    QVERIFY(seen);
    QVERIFY(panel->panelView()->isEnabled());
    QCOMPARE(m_system.submitted.size(), end == End::Escape ? 0 : 1);
}

void PrintRequestTest::escapeLeavesThingsAsTheyAre_data()
{
    QTest::addColumn<bool>("greyed");
    QTest::newRow("conflict") << false;
    QTest::newRow("greyed choice") << true;
}

void PrintRequestTest::escapeLeavesThingsAsTheyAre()
{
    QFETCH(bool, greyed);
    PrintWindow &window = open();
    if (greyed) {
        choose(u"MediaType"_s, u"Thick"_s);
        auto *duplex = find<platform::ChoiceBox>(u"Duplex"_s);
        duplex->setFocus();
        Q_EMIT duplex->greyedPicked(duplex->findData(u"DuplexNoTumble"_s));
    } else {
        makeConflict();
        printButton()->click();
    }
    QVERIFY(window.findChild<MessageBar *>()->isShowing());
    const auto conflicts = window.session()->conflicts().size();
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    QVERIFY(window.isVisible() && !window.findChild<MessageBar *>()->isShowing());
    QCOMPARE(window.session()->conflicts().size(), conflicts);
    QVERIFY(!greyed || window.session()->ppd()->markedChoice(u"MediaType"_s) == u"Thick"_s);
    QVERIFY(m_system.submitted.isEmpty());
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

// A job that is printed again, and then rejected, does not replace the first one.
void PrintRequestTest::earlierJobCounts()
{
    PrintWindow &window = open();
    printButton()->click();
    settle();
    m_system.serverError = {PrintError::Kind::ServerAway, u"the server is away"_s};
    Q_EMIT find<ResultPage>()->printAgainWanted();
    settle();
    QCOMPARE(window.findChild<MessageBar *>()->text(), u"the server is away"_s);
    window.reject();
    QVERIFY(window.submission() && window.submission()->isAccepted());
    QCOMPARE(window.submission()->job.id, 1);
}

void PrintRequestTest::pdfResultWaitsForThePages()
{
    const QTemporaryDir folder;
    GatedPrintSystem system;
    static_cast<FakePrintSystem &>(system) = m_system;
    system.gated = u"attic"_s;
    PrintTask task;
    task.files = {folder.filePath(u"missing.txt"_s)};
    m_window = std::make_unique<PrintWindow>(system, m_none, task);
    PrintError error;
    QVERIFY(m_window->open(&error));
    m_window->show();
    Q_EMIT find<PrinterPicker>()->picked(u"attic"_s);
    QTRY_VERIFY(find<WaitingPage>()->isVisible());
    Q_EMIT m_window->book()->savePdfWanted(); // too late
    QVERIFY(!find<QFileDialog>());
    system.gate.release();
    settle();
    system.gated = u"office"_s;
    beginSaving(folder.filePath(u"saved.pdf"_s));
    Q_EMIT find<PrinterPicker>()->picked(u"office"_s);
    QTRY_VERIFY(find<WaitingPage>()->isVisible()); // takes longer than detecting a missing document
    system.gate.release();
    settle();
    QCOMPARE(m_window->session()->destination().queue, u"office"_s);
    QVERIFY2(m_window->findChild<MessageBar *>()->text().contains(u"missing.txt"_s),
             qPrintable(m_window->findChild<MessageBar *>()->text()));
    m_window.reset();
    settle();
}

void PrintRequestTest::failedActionGoesWithTheNextNews()
{
    ResultPage page;
    Submission submission;
    submission.outcome = Submission::Outcome::Accepted;
    submission.job.status.state = JobStatus::State::Processing;
    page.showSubmission(u"Office"_s, {}, submission);
    const auto shows = [&page](const QString &text) {
        const auto labels = page.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel *label) { return !label->isHidden() && label->text() == text; });
    };
    page.showProblem(u"the job cannot be cancelled"_s);
    page.showStatus(submission.job.status);
    QVERIFY(shows(u"the job cannot be cancelled"_s));
    submission.job.status.state = JobStatus::State::Completed;
    page.showStatus(submission.job.status);
    QVERIFY(!shows(u"the job cannot be cancelled"_s));
}

// Each page with the focus and a pending layout, while the session and its pages are destroyed.
void PrintRequestTest::pagesGoWhileTheyAreLaidOut()
{
    PrintWindow &window = open();
    const int pages = window.book()->list()->count();
    for (int round = 0; round < 200; ++round) {
        window.book()->showPage(round % pages);
        for (auto *child : window.book()->pages()->findChildren<QWidget *>()) {
            if (child->isVisible() && (child->focusPolicy() & Qt::TabFocus))
                child->setFocus();
            QCoreApplication::postEvent(child, new QEvent(QEvent::LayoutRequest));
        }
        if (round % 3 == 0)
            QTest::keyClick(&window, Qt::Key_F1);
        if (round % 2 == 0)
            window.showSession();
        else
            Q_EMIT find<PrinterPicker>()->picked(round % 4 == 1 ? u"attic"_s : u"office"_s);
        settle();
        QVERIFY(window.session());
        if (window.book()->currentRow() < 0)
            window.book()->showPage(round % pages);
    }
    window.reject();
    m_window.reset();
}

QTEST_MAIN(PrintRequestTest)
#include "print_request_test.moc"
