// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/destination.h"
#include "host/session/setting_keys.h"
#include "host/window/jobs/result_page.h"
#include "host/window/look/elided_label.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/printers/printer_box.h"
#include "host/window/unavailable_page.h"
#include "host/window/waiting/waiting_page.h"
#include "tests/host/window_fixture.h"

#include <QAccessible>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace host;
using namespace Qt::StringLiterals;

// The window with a print system without a server, operated with keys and clicks.
class PrintWindowTest : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void printsWithTheGeneralPane();
    void documentOfAnotherProgramHasItsTitle();
    void nonsensicalPagesStopPrinting();
    void settingsOfTheTaskReachThePickedPrinter();
    void forbiddenChoiceIsGreyed();
    void opensWithoutServer();
    void otherPrinterTakesTheGeneralChoicesAlong();
    void printerThatIsPickedAgainStays();
    void pipeThatBringsNothingIsLeft();
    void remembersThePrinter();
    void settingsAreTheAnswer();
    void brokenPpdStillPrints();
    void panelsAreRestoredWhenShown();
    void keysSelectAPage_data();
    void keysSelectAPage();
    void selectedRowIsVisible();
    void escapeCancels();
    void customSizeIsTyped();
    void unfinishedPasswordStopsPrinting();
    void textsAreNeverMarkup();
    void longTextsKeepTheWindow();
};

void PrintWindowTest::printsWithTheGeneralPane()
{
    PrintWindow &window = open();
    auto *copies = find<QSpinBox>();
    copies->setFocus();
    copies->selectAll();
    QTest::keyClicks(copies, u"3"_s);
    for (auto *radio : window.findChildren<QRadioButton *>()) {
        if (!radio->isChecked()) {
            QTest::mouseClick(radio, Qt::LeftButton, {}, {8, radio->height() / 2});
            break;
        }
    }
    auto *pages = window.findChild<QLineEdit *>(u"page-ranges"_s);
    QVERIFY(pages->isEnabled());
    QTest::keyClicks(pages, u"2-3, 1"_s);
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
    const JobRequest job = m_system.submitted.first();
    QCOMPARE(sentValue(job.options, u"copies"_s), u"3"_s);
    QCOMPARE(sentValue(job.options, u"page-ranges"_s), u"1-3"_s);
    QCOMPARE(sentValue(job.options, u"Duplex"_s), u"DuplexNoTumble"_s);
    QVERIFY2(find<ResultPage>()->text().contains(u"Job 1: printing"_s),
             qPrintable(find<ResultPage>()->text()));
    m_system.status.state = JobStatus::State::Completed;
    QTRY_VERIFY(find<ResultPage>()->text().contains(u"Job 1: done"_s));
    QTest::keyClick(&window, Qt::Key_Return);
    QCOMPARE(window.result(), int(QDialog::Accepted));
}

// Its file has no name.
void PrintWindowTest::documentOfAnotherProgramHasItsTitle()
{
    PrintTask task;
    task.files = {u"/proc/self/fd/7"_s};
    task.documentName = u"A web\npage"_s;
    QCOMPARE(PrintWindow(m_system, m_none, task).windowTitle(), u"Print “A web page”"_s);
}

void PrintWindowTest::nonsensicalPagesStopPrinting()
{
    PrintWindow &window = open();
    for (auto *radio : window.findChildren<QRadioButton *>())
        radio->click();
    QTest::keyClicks(window.findChild<QLineEdit *>(u"page-ranges"_s), u"3-1"_s);
    printButton()->click();
    settle();
    QVERIFY(m_system.submitted.isEmpty());
    QVERIFY(window.findChild<QLineEdit *>(u"page-ranges"_s)->hasFocus());
}

void PrintWindowTest::settingsOfTheTaskReachThePickedPrinter()
{
    PrintTask task;
    task.files = {m_document.fileName()};
    task.printer = u"nosuch"_s;
    task.prepare = [](DialogSession *session, PrintError *error) {
        return host::choose(session, {u"Duplex"_s, u"DuplexNoTumble"_s}, error) &&
               host::choose(session, {u"sides"_s, u"two-sided-long-edge"_s, ChosenSetting::Kind::JobOption},
                            error);
    };
    m_window = std::make_unique<PrintWindow>(m_system, m_none, task);
    PrintError error;
    QVERIFY(m_window->open(&error));
    settle();
    auto *picker = find<PrinterPicker>();
    Q_EMIT picker->listOutdated();
    Q_EMIT picker->picked(u"raw"_s);
    settle();
    QVERIFY(!m_window->session());
    QVERIFY(find<UnavailablePage>()->accessibleName().contains(u"“Duplex”"_s));
    Q_EMIT picker->picked(u"attic"_s);
    QTRY_VERIFY(m_window->session());
    Q_EMIT picker->picked(u"raw"_s); // only has the standard name
    QTRY_COMPARE(m_window->session()->destination().queue, u"raw"_s);
    QVERIFY2(!m_window->findChild<MessageBar *>()->isShowing(),
             qPrintable(m_window->findChild<MessageBar *>()->text()));
    m_window->print();
    settle();
    QCOMPARE(sentValue(m_system.submitted.value(0).options, u"sides"_s), u"two-sided-long-edge"_s);
}

void PrintWindowTest::forbiddenChoiceIsGreyed()
{
    PrintWindow &window = open();
    choose(u"MediaType"_s, u"Thick"_s);
    auto *duplex = find<QComboBox>(u"Duplex"_s);
    auto *item =
        qobject_cast<QStandardItemModel *>(duplex->model())->item(duplex->findData(u"DuplexNoTumble"_s));
    QVERIFY(!item->isEnabled());
    QCOMPARE(item->accessibleDescription(), u"Not available while “Paper Type” is “Heavy Paper”."_s);
    choose(u"MediaType"_s, u"Plain"_s);
    QVERIFY(item->isEnabled());
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    window.session()->markChoice(u"MediaType"_s, u"Thick"_s); // conflicts; the change can still be reverted
    window.book()->refresh();
    const auto *model = qobject_cast<QStandardItemModel *>(duplex->model());
    QVERIFY(model->item(duplex->findData(u"None"_s))->isEnabled());
}

void PrintWindowTest::opensWithoutServer()
{
    m_system.serverError = {PrintError::Kind::ServerAway, u"the server is away"_s};
    PrintWindow &window = open();
    QVERIFY(!window.session());
    QVERIFY(!printButton()->isEnabled());
    auto *page = find<UnavailablePage>();
    QVERIFY(page->isVisible());
    QCOMPARE(page->accessibleName(), u"the server is away"_s);
    QTest::mouseClick(page->findChild<QPushButton *>(), Qt::LeftButton); // still unreachable
    settle();
    QVERIFY(page->isVisible());
    settle();
    m_system.serverError = {};
    QTest::mouseClick(page->findChild<QPushButton *>(), Qt::LeftButton);
    settle();
    QVERIFY(window.session() && printButton()->isEnabled() && !page->isVisible());
    QCOMPARE(find<PrinterBox>()->count(), 3);
}

void PrintWindowTest::otherPrinterTakesTheGeneralChoicesAlong()
{
    PrintWindow &window = open();
    find<QSpinBox>()->setValue(4);
    choose(u"PageSize"_s, u"A3"_s);
    auto *picker = find<PrinterBox>();
    QCOMPARE(picker->count(), 3);
    picker->setCurrentIndex(1);
    Q_EMIT picker->activated(1);
    settle();
    QCOMPARE(window.session()->destination().queue, u"attic"_s);
    QCOMPARE(find<QSpinBox>()->value(), 4);
    QCOMPARE(find<QComboBox>(u"PageSize"_s)->currentData().toString(), u"A3"_s);
    picker->setCurrentIndex(2); // unsupported, without a PPD
    Q_EMIT picker->activated(2);
    QTRY_VERIFY(!find<QComboBox>(u"PageSize"_s));
    QCOMPARE(find<PageList>()->count(), 3); // general, job and summary
    printButton()->click();
    settle();
    QCOMPARE(sentValue(m_system.submitted.value(0).options, u"copies"_s), u"4"_s);
}

void PrintWindowTest::printerThatIsPickedAgainStays()
{
    PrintWindow &window = open();
    auto *box = find<PrinterBox>();
    for (const int row : {1, 0}) {
        box->setCurrentIndex(row);
        Q_EMIT box->activated(row);
    }
    settle();
    QCOMPARE(window.session()->destination().queue, u"office"_s);
    QVERIFY(printButton()->isEnabled());
}

void PrintWindowTest::pipeThatBringsNothingIsLeft()
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"pipe"_s);
    QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
    PrintTask task;
    task.files = {pipe};
    show(task, {}, false);
    printButton()->click();
    auto *waiting = find<WaitingPage>();
    QTRY_COMPARE(waiting->text(), u"Reading the document…"_s);
    waiting->cancelButton()->click();
    QVERIFY(!waiting->isVisible() && printButton()->isEnabled());
    QCOMPARE(m_window->findChild<MessageBar *>()->text(), u"Printing was canceled."_s);
    settle();
    printButton()->click();
    QFile writer(pipe);
    QVERIFY(writer.open(QIODevice::WriteOnly) && writer.write("some text\n") > 0);
    writer.close();
    QTRY_COMPARE(m_system.submitted.size(), 1);
    QCOMPARE(m_system.submitted.first().documents.first().size, 10);
}

void PrintWindowTest::remembersThePrinter()
{
    open(u"attic"_s);
    printButton()->click();
    settle();
    QCOMPARE(open().session()->destination().queue, u"attic"_s);
    m_system.printers[1].instance = u"draft"_s;
    QCOMPARE(open(u"attic/draft"_s).session()->destination().instance, u"draft"_s);
    printButton()->click();
    settle();
    m_system.printers[1].instance.clear(); // another program has deleted the preset since
    QCOMPARE(open().session()->destination().queue, u"attic"_s);
    m_system.printers.removeAt(1); // it has been removed since: back to the default
    QCOMPARE(open().session()->destination().queue, u"office"_s);
}

void PrintWindowTest::settingsAreTheAnswer()
{
    PrintTask task;
    task.settingsOnly = true;
    task.acceptLabel = u"&Continue"_s;
    task.begin = [](DialogSession *session) { chooseGeneral(session, u"copies"_s, u"3"_s); };
    m_window = std::make_unique<PrintWindow>(m_system, m_none, task);
    PrintError error;
    QVERIFY(m_window->open(&error));
    settle();
    const auto buttons = m_window->findChildren<QPushButton *>();
    const auto accept = std::find_if(buttons.begin(), buttons.end(), [](auto *b) { return b->isDefault(); });
    QVERIFY(accept != buttons.end());
    QCOMPARE((*accept)->text(), u"&Continue"_s);
    QCOMPARE(find<QSpinBox>()->value(), 3);
    (*accept)->click();
    settle();
    QCOMPARE(m_window->result(), int(QDialog::Accepted));
    QVERIFY(m_system.submitted.isEmpty());
}

void PrintWindowTest::brokenPpdStillPrints()
{
    m_system.ppds.insert(u"office"_s, "no PPD at all\n");
    PrintWindow &window = open();
    QCOMPARE(window.findChild<MessageBar *>()->kind(), MessageBar::Kind::Notice);
    printButton()->click();
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
}

void PrintWindowTest::panelsAreRestoredWhenShown()
{
    PrintWindow &window = open();
    auto first = std::make_unique<FakePanel>(u"Colour"_s, QStringList(u"ColorType"_s), window.session());
    auto second = std::make_unique<FakePanel>(u"Balance"_s, QStringList(u"Cyan"_s), window.session());
    FakePanel *colour = first.get(), *balance = second.get();
    platform::PrintDialogPanels panels;
    panels.push_back(std::move(first));
    panels.push_back(std::move(second));
    adoptPanels(window.session(), std::move(panels));
    window.showSession();
    window.book()->showPage(0);
    QCOMPARE(colour->restored, 0);
    auto *list = find<PageList>();
    QCOMPARE(list->count(), 6); // general, two panels, more, job, summary
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(colour->restored + balance->restored, 2);
    QCOMPARE(balance->shown, 1);
    QCOMPARE(colour->saved, 1); // the page was left
    window.book()->showPage(window.book()->pageNamed(u"summary"_s));
    QCOMPARE(balance->saved, 1);
    const auto labels = window.findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(),
                        [](QLabel *label) { return label->text() == u"Balance"_s; }));
}

void PrintWindowTest::keysSelectAPage_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<int>("row");
    QTest::newRow("next") << QStringList{u"Down"_s} << 2;
    QTest::newRow("previous") << QStringList{u"Up"_s} << 0;
    QTest::newRow("first") << QStringList{u"Home"_s} << 0;
    QTest::newRow("last") << QStringList{u"End"_s} << 3;
    QTest::newRow("letter") << QStringList{u"S"_s} << 2;
    QTest::newRow("same letter again") << QStringList{u"S"_s, u"S"_s} << 3;
    QTest::newRow("several letters") << QStringList{u"S"_s, u"U"_s} << 3;
    QTest::newRow("letter of no page") << QStringList{u"S"_s, u"X"_s} << 2;
    QTest::newRow("access key") << QStringList{u"Alt+S"_s} << 1;
}

void PrintWindowTest::keysSelectAPage()
{
    QFETCH(const QStringList, keys);
    QFETCH(const int, row);
    PageList list;
    for (const QString &title : {u"General"_s, u"Paper & Tray"_s, u"Security"_s, u"Summary"_s})
        list.addPage(title);
    list.setCurrentIndex(1);
    for (const QString &key : keys)
        QTest::keySequence(&list, QKeySequence(key));
    QCOMPARE(list.currentIndex(), row);
}

void PrintWindowTest::selectedRowIsVisible()
{
    PrintWindow &window = open();
    window.book()->setFixedHeight(80); // lower than its rows
    QCoreApplication::processEvents();
    auto *list = find<PageList>();
    for (const int row : {list->count() - 1, 0}) {
        window.book()->showPage(row);
        QVERIFY(list->visibleRegion().contains(list->tabRect(row)));
    }
}

void PrintWindowTest::escapeCancels()
{
    PrintWindow &window = open();
    QSignalSpy finished(&window, &QDialog::finished);
    QTest::keyClick(&window, Qt::Key_Escape);
    QCOMPARE(finished.size(), 1);
    QVERIFY(!window.submission());
    QVERIFY(m_system.submitted.isEmpty());
}

void PrintWindowTest::customSizeIsTyped()
{
    m_system.ppds.insert(u"office"_s, customPpd());
    PrintWindow &window = open();
    auto *width = find<QDoubleSpinBox>(u"Width"_s);
    auto *unit = find<QComboBox>(u"unit"_s);
    QVERIFY(!width->isVisible());
    choose(u"PageSize"_s, u"Custom"_s);
    QVERIFY(width->isVisible() && width->hasFocus());
    unit->setCurrentIndex(unit->findData(u"cm"_s));
    Q_EMIT unit->activated(unit->currentIndex());
    width->selectAll();
    QTest::keyClicks(width, u"10"_s);
    auto *height = find<QDoubleSpinBox>(u"Height"_s);
    height->setFocus();
    height->selectAll();
    QTest::keyClicks(height, u"20.5"_s);
    QCOMPARE(window.session()->ppd()->markedChoice(u"PageSize"_s), u"Custom.10x20.5cm"_s);
    width->setFocus();
    height->setFocus();
    height->selectAll();
    // More than the printer accepts: the text is kept, and so is the earlier size, although 9 cm is accepted.
    QTest::keyClicks(height, u"999999"_s);
    QCOMPARE(height->value(), 999999);
    QCOMPARE(window.session()->ppd()->markedChoice(u"PageSize"_s), u"Custom.10x20.5cm"_s);
    auto *problem = height->parentWidget()->findChild<QLabel *>(u"problem"_s);
    QVERIFY(!problem->isVisible());
    window.print();
    settle();
    QVERIFY(m_system.submitted.isEmpty() && problem->isVisible() && height->hasFocus());
    QCOMPARE(problem->text(), u"Height: 999999 cm is out of range; enter a length from 2.54 to 70.55 cm."_s);
    QCOMPARE(height->accessibleDescription(), problem->text());
    QCOMPARE(QAccessible::queryAccessibleInterface(problem)->role(), QAccessible::Notification);
    QTest::keyClicks(height, u"8"_s); // replaces the selected input
    QVERIFY(!problem->isVisible() && height->accessibleDescription().isEmpty());
    QCOMPARE(window.session()->ppd()->markedChoice(u"PageSize"_s), u"Custom.10x8cm"_s);
    QTest::keyClicks(height, u"88"_s);
    QCOMPARE(window.session()->ppd()->markedChoice(u"PageSize"_s), u"Custom.10x20.5cm"_s);
    choose(u"PageSize"_s, u"A4"_s);
    QVERIFY(!width->isVisible());
    QCOMPARE(window.session()->ppd()->markedChoice(u"PageSize"_s), u"A4"_s);
    // Set elsewhere, with more digits than the field shows: the editor shows it instead of an invalid value.
    choose(u"PageSize"_s, u"Custom"_s);
    QVERIFY(window.session()->markChoice(u"PageSize"_s, u"Custom.100.123x200mm"_s));
    Q_EMIT window.session()->changed();
    QVERIFY(width->isVisible());
    QCOMPARE(unit->currentData().toString(), u"mm"_s);
    window.print();
    settle();
    QCOMPARE(sentValue(m_system.submitted.first().options, u"PageSize"_s), u"Custom.100.123x200mm"_s);
}

void PrintWindowTest::unfinishedPasswordStopsPrinting()
{
    m_system.ppds.insert(u"office"_s, customPpd());
    PrintWindow &window = open();
    auto *book = find<PageBook>();
    book->showPage(book->pageNamed(u"more"_s));
    choose(u"Lock"_s, u"Custom"_s);
    auto *field = find<QLineEdit>(u"Secret"_s);
    QCOMPARE(field->echoMode(), QLineEdit::Password);
    QTest::keyClicks(field, u"s3c"_s);
    book->showPage(0);
    window.print();
    settle();
    QVERIFY(m_system.submitted.isEmpty());
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field, u"retandmuchmore"_s); // limited to what the printer accepts
    window.print();
    settle();
    QCOMPARE(sentValue(m_system.submitted.first().options, u"Lock"_s), u"Custom.s3cretan"_s);
}

void PrintWindowTest::longTextsKeepTheWindow()
{
    const QString nonsense = QString(1000, u'W') + u'\n' + QString(200, u'\n');
    Destination &office = m_system.printers.first();
    office.location = nonsense;
    office.info = nonsense;
    m_system.ppds[u"office"_s]
        .replace("Paper Type", QByteArray(79, 'W'))
        .replace("Plain Paper", QByteArray(79, 'W'));
    PrintWindow &window = open();
    QVERIFY2(window.width() <= 800 && window.height() <= 700,
             qPrintable(u"%1 × %2"_s.arg(window.width()).arg(window.height())));
    window.session()->addNotice(nonsense);
    Q_EMIT window.session()->changed();
    QVERIFY(window.minimumSizeHint().width() <= 800 && window.minimumSizeHint().height() <= 700);
    auto *state = find<PrinterPicker>()->findChild<ElidedLabel *>();
    QVERIFY(state->toolTip().size() > 500);
}

void PrintWindowTest::textsAreNeverMarkup()
{
    m_system.ppds.insert(u"office"_s, officePpd()
                                          .replace("Two-Sided", "<3C>b<3E>Two<3C>/b<3E> & more")
                                          .replace("Heavy Paper", "<3C>b<3E>Heavy<3C>/b<3E>"));
    PrintWindow &window = open();
    choose(u"MediaType"_s, u"Thick"_s);
    auto *items = qobject_cast<QStandardItemModel *>(find<QComboBox>(u"Duplex"_s)->model());
    QVERIFY2(items->item(1)->toolTip().contains(u"&lt;b&gt;Heavy"_s), qPrintable(items->item(1)->toolTip()));
    bool seen = false;
    for (auto *label : window.findChildren<QLabel *>()) {
        QVERIFY2(label->textFormat() == Qt::PlainText || !label->text().contains(u'<'),
                 qPrintable(label->text()));
        seen |= label->text().contains(u"Two</b"_s) || label->text().contains(u"b>T"_s);
    }
    QVERIFY(seen);
}

QTEST_MAIN(PrintWindowTest)
#include "print_window_test.moc"
