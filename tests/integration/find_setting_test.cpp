// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/setting_keys.h"
#include "host/window/guide/guide_buttons.h"
#include "host/window/guide/help_desk.h"
#include "host/window/guide/help_page.h"
#include "host/window/guide/search_bar.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_controls.h"
#include "host/window/pages/page_list.h"
#include "host/window/presets/preset_dialog.h"
#include "host/window/print_window.h"
#include "host/window/waiting/login_dialog.h"
#include "platform/choice_box.h"
#include "tests/host/family_printer.h"
#include "tests/support/paths.h"
#include "tests/support/thread_clock.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr qint64 answerTime = 1000; // milliseconds
#else
constexpr qint64 answerTime = 50;
#endif

QByteArray hugePpd()
{
    QByteArray options;
    for (int i = 0; i < 700; ++i) {
        const QByteArray number = QByteArray::number(i);
        options +=
            ppdOption("Unit" + number + "/Unit Number " + number, {"Off/No", "On/Yes", "Auto/Automatic"});
    }
    return ppdGroup("Units/Units", options);
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList({u"*.md"_s}, QDir::Files);
}

// Interactive widgets of a window that have no description.
QStringList unexplained(const QWidget *window)
{
    QStringList names;
    for (const QWidget *control : window->findChildren<QWidget *>()) {
        const QWidget *explained = control;
        while (explained != window && explained->whatsThis().isEmpty())
            explained = explained->parentWidget();
        const bool isWorked = (control->focusPolicy() & Qt::TabFocus) && control->isVisible() &&
                              !control->focusProxy() && !qobject_cast<const QScrollArea *>(control);
        if (isWorked && explained == window)
            names.append(QString::fromLatin1(control->metaObject()->className()) + u' ' +
                         control->objectName() + u' ' + control->accessibleName() +
                         control->property("text").toString());
    }
    return names;
}

} // namespace

// How users find settings in the dialog: search, greyed choices, and help. With a PPD of the family and its
// panels, operated with keys.
class FindSettingTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_window.reset(); }
    void leadsToTheSetting_data();
    void leadsToTheSetting();
    void findsNoCodes();
    void escapeGivesTheFocusBack();
    void answersAtOnce();
    void greyedChoiceIsOffered();
    void greyedChoiceOfAPanelIsOffered();
    void protectionIsNotGivenUpSilently();
    void printsDespiteAConflict();
    void buttonsForWhoKnowsNoKeys();
    void helpOfEveryPage();
    void helpSpeaksEveryLanguage();
    void controlsSayWhatTheyAreFor();
    void readersFindTheirWay();

private:
    void open(const QByteArray &ppd);
    void search(const QString &query);
    QListWidget *results() const { return m_window->findChild<SearchBar *>()->results(); }
    // A search result without its direction marks.
    QString lineOf(int row) const { return results()->item(row)->text().remove(QChar(0x200e)).simplified(); }
    platform::ChoiceBox *box(const QString &keyword) const;
    // Opens the list of a box and selects an item with the keyboard.
    void pick(const QString &keyword, const QString &choice);
    QString barText() const { return m_window->findChild<MessageBar *>()->text(); }

    FamilyPrintSystem m_system;
    Extensions m_extensions{Extensions::installedBundles(buildPath("/bin"))};
    std::unique_ptr<PrintWindow> m_window;
};

void FindSettingTest::initTestCase()
{
    QCoreApplication::setOrganizationName(u"kelmar-test"_s);
}

void FindSettingTest::init()
{
    open(FamilyPrintSystem::familyPpd(u"kelm880.ppd"_s));
}

void FindSettingTest::open(const QByteArray &ppd)
{
    m_window.reset();
    m_system = FamilyPrintSystem(ppd);
    PrintTask task;
    for (const QString &name : {u"report.pdf"_s, u"note.txt"_s})
        task.files.append(sourcePath("/demo/") + name);
    m_window = std::make_unique<PrintWindow>(m_system, m_extensions, task);
    PrintError error;
    QVERIFY(m_window->open(&error));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(m_window->session());
}

void FindSettingTest::search(const QString &query)
{
    QTest::keyClick(m_window->focusWidget(), Qt::Key_F, Qt::ControlModifier);
    auto *bar = m_window->findChild<SearchBar *>();
    QVERIFY(bar && bar->field()->hasFocus());
    for (const QChar c : query) {
        if (c.unicode() < 0x80)
            QTest::keyClick(bar->field(), c.toLatin1());
        else // from an input method
            bar->field()->insert(c);
    }
}

platform::ChoiceBox *FindSettingTest::box(const QString &keyword) const
{
    for (auto *candidate : m_window->findChildren<platform::ChoiceBox *>()) {
        if (candidate->optionKeyword() == keyword)
            return candidate;
    }
    return nullptr;
}

void FindSettingTest::pick(const QString &keyword, const QString &choice)
{
    platform::ChoiceBox *list = box(keyword);
    QVERIFY2(list, qPrintable(keyword));
    list->setFocus();
    list->showPopup();
    QTest::keyClick(list->view(), Qt::Key_Home);
    for (int i = 0; i < list->count() && list->choiceKeyword(list->view()->currentIndex().row()) != choice;
         ++i)
        QTest::keyClick(list->view(), Qt::Key_Down);
    QTest::keyClick(list->view(), Qt::Key_Return);
    QVERIFY(!list->view()->isVisible());
}

void FindSettingTest::leadsToTheSetting_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name"); // of the control, for a screen reader
    const QString one = u"com.kelmar.pde.color-settings-1"_s;
    QTest::newRow("general setting") << u"copies"_s << u"General › Copies"_s << u"general"_s << u"Copies"_s;
    QTest::newRow("any order, any case")
        << u"sided TWO long"_s << u"General › Two-Sided Printing › Long-Edge Binding"_s << u"general"_s
        << u"Two-Sided Printing"_s;
    QTest::newRow("keyword") << u"DistinguishThinL"_s << u"Print Mode › Distinguish Thin Lines"_s
                             << u"com.kelmar.pde.print-mode"_s << u"Distinguish Thin Lines"_s;
    QTest::newRow("accents") << u"pure blàck and grây"_s << u"Color Settings 1 › Pure Black and Gray"_s << one
                             << u"Pure Black and Gray"_s;
    QTest::newRow("choice by keyword") << u"colortype mono"_s << u"General › Color Mode › Black and White"_s
                                       << u"general"_s << u"Color Mode"_s;
    QTest::newRow("slider") << u"yellow balance"_s << u"Color Settings 2 › Yellow"_s
                            << u"com.kelmar.pde.color-settings-2"_s << u"Yellow"_s;
    QTest::newRow("check box") << u"toner save"_s << u"Color Settings 1 › Toner Save"_s << one
                               << u"Toner Save"_s;
    QTest::newRow("choice of a check box")
        << u"tonersave true"_s << u"Color Settings 1 › Toner Save › On"_s << one << u"Toner Save"_s;
    QTest::newRow("what a tool tip says") << u"charged to"_s << u"Print Mode › Department Code"_s
                                          << u"com.kelmar.pde.print-mode"_s << u"Department Code"_s;
    QTest::newRow("a view that is not open")
        << u"reload from printer"_s << u"Color Settings 1 › Reload from Printer"_s << one
        << u"Reload from Printer"_s;
    QTest::newRow("cover sheet") << u"cover"_s << u"Job › Cover sheets"_s << u"job"_s
                                 << u"Cover sheet before"_s;
    QTest::newRow("list") << u"documents"_s << u"General › Documents to print"_s << u"general"_s
                          << u"Documents to print"_s;
    QTest::newRow("other options") << u"punch"_s << u"More Options › Hole Punch"_s << u"more"_s
                                   << u"Hole Punch"_s;
}

void FindSettingTest::leadsToTheSetting()
{
    QFETCH(const QString, query);
    QFETCH(const QString, line);
    QFETCH(const QString, page);
    QFETCH(const QString, name);
    search(query);
    QVERIFY(results()->isVisible());
    QCOMPARE(lineOf(0), line);
    for (int row = 1; row < m_window->book()->list()->count(); ++row)
        QVERIFY2(!m_window->book()->builtPage(row), "the search has built a page");
    QSignalSpy moves(qApp, &QApplication::focusChanged);
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
    QCOMPARE(m_window->book()->currentName(), page);
    QTRY_VERIFY(m_window->focusWidget() && m_window->book()->pages()->isAncestorOf(m_window->focusWidget()));
    QWidget *control = m_window->focusWidget();
    QCOMPARE(moves.size(), 1); // a screen reader reads each control that the focus passes
    QCOMPARE(control->accessibleName().isEmpty() ? control->property("text").toString().remove(u'&')
                                                 : control->accessibleName(),
             name);
    QVERIFY(!control->visibleRegion().isEmpty());
    QVERIFY(results()->isHidden());
}

void FindSettingTest::findsNoCodes()
{
    for (const QString &query : {u"DINDigit1"_s, u"dcdigit 2"_s}) {
        search(query);
        QCOMPARE(results()->count(), 0);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
        QVERIFY(m_window->isVisible() && m_system.submitted.isEmpty()); // Return does not print here
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);
    }
}

void FindSettingTest::escapeGivesTheFocusBack()
{
    box(u"PageSize"_s)->setFocus();
    search(u"tray"_s);
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Down);
    QVERIFY(results()->hasFocus());
    QTest::keyClick(results(), Qt::Key_Down);
    QCOMPARE(results()->currentRow(), 1);
    QSignalSpy moves(qApp, &QApplication::focusChanged);
    QTest::keyClick(results(), Qt::Key_Escape);
    QVERIFY(m_window->isVisible() && results()->isHidden());
    QVERIFY(box(u"PageSize"_s)->hasFocus());
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    QVERIFY(m_window->findChild<HelpPage *>()->browser()->hasFocus());
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);
    QVERIFY(box(u"PageSize"_s)->hasFocus());
    QCOMPARE(moves.size(), 3); // once for each key
    QTest::keyClick(m_window.get(), Qt::Key_PageDown, Qt::ControlModifier);
    QVERIFY(m_window->book()->list()->hasFocus());
    QCOMPARE(moves.size(), 4);
}

void FindSettingTest::answersAtOnce()
{
    open(hugePpd());
    ThreadClock clock;
    search(u"number 69"_s);
    const qint64 opened = clock.milliseconds();
    clock.restart();
    QTest::keyClick(m_window->focusWidget(), Qt::Key_9);
    const qint64 answered = clock.milliseconds();
    QCOMPARE(lineOf(0), u"More Options › Unit Number 699"_s);
    qInfo("opened and typed in %lld ms, answered in %lld ms", opened, answered);
    QVERIFY2(answered <= answerTime, qPrintable(QString::number(answered)));
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(box(u"Unit699"_s), 10000);
    QTRY_COMPARE(m_window->focusWidget(), static_cast<QWidget *>(box(u"Unit699"_s)));
    QTRY_VERIFY(!m_window->focusWidget()->visibleRegion().isEmpty());
}

void FindSettingTest::greyedChoiceIsOffered()
{
    pick(u"MediaType"_s, u"Thick1"_s);
    pick(u"Duplex"_s, u"DuplexNoTumble"_s);
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"Duplex"_s), u"None"_s); // nothing has changed yet
    QVERIFY2(barText().contains(u"“Two-Sided Printing: Long-Edge Binding” is not available now"_s) &&
                 barText().contains(u"“Paper Type: Plain Paper” instead of “Thick Paper 1”"_s),
             qPrintable(barText()));
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"Duplex"_s), u"DuplexNoTumble"_s);
    QVERIFY(m_window->session()->conflicts().isEmpty() && !m_window->findChild<MessageBar *>()->isShowing());
    QCOMPARE(box(u"Duplex"_s)->choiceKeyword(box(u"Duplex"_s)->currentIndex()), u"DuplexNoTumble"_s);

    QTest::keyClick(m_window->focusWidget(), Qt::Key_Z, Qt::ControlModifier); // one step
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"Duplex"_s), u"None"_s);
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"MediaType"_s), u"Thick1"_s);
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);

    pick(u"MediaType"_s, u"Thick2"_s); // and this time everything stays unchanged
    m_window->findChild<MessageBar *>()->buttons().last()->click();
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"Duplex"_s), u"DuplexNoTumble"_s);
}

void FindSettingTest::greyedChoiceOfAPanelIsOffered()
{
    m_window->book()->showPage(m_window->book()->pageNamed(u"print-mode"_s));
    pick(u"BlankPage"_s, u"True"_s);
    pick(u"PrintMode"_s, u"Proof"_s);
    QVERIFY2(barText().contains(u"Skip Blank Pages"_s), qPrintable(barText()));
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
    m_window->session()->save();
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"PrintMode"_s), u"Proof"_s);
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"BlankPage"_s), u"False"_s);
}

void FindSettingTest::protectionIsNotGivenUpSilently()
{
    m_window->book()->showPage(m_window->book()->pageNamed(u"print-mode"_s));
    pick(u"PrintMode"_s, u"Private"_s);
    m_window->book()->showPage(m_window->book()->pageNamed(u"more"_s));
    pick(u"JobRetention"_s, u"Week"_s);
    QVERIFY2(barText().contains(u"This gives up “Print Mode: Private”"_s), qPrintable(barText()));
    m_window->findChild<MessageBar *>()->buttons().last()->click();
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"PrintMode"_s), u"Private"_s);
    m_window->session()->markChoice(u"JobRetention"_s, u"Week"_s);
    m_window->print();
    QVERIFY2(barText().contains(u"the printer may print without it"_s), qPrintable(barText()));
}

void FindSettingTest::printsDespiteAConflict()
{
    m_window->session()->markChoice(u"MediaType"_s, u"Thick1"_s);
    m_window->session()->markChoice(u"Duplex"_s, u"DuplexTumble"_s);
    m_window->print();
    QVERIFY(m_system.submitted.isEmpty());
    QCOMPARE(m_window->findChild<MessageBar *>()->buttons().size(), 3);
    m_window->findChild<MessageBar *>()->buttons().at(1)->click();
    QTRY_COMPARE(m_system.submitted.size(), 1);
    QCOMPARE(sentValue(m_system.submitted.first().options, u"MediaType"_s), u"Thick1"_s);
    QCOMPARE(sentValue(m_system.submitted.first().options, u"Duplex"_s), u"DuplexTumble"_s);
}

void FindSettingTest::buttonsForWhoKnowsNoKeys()
{
    m_window->finishLater();
    auto *guide = m_window->findChild<GuideButtons *>();
    QVERIFY(guide && guide->isVisible());
    const QList<QPushButton *> buttons = guide->findChildren<QPushButton *>();
    QCOMPARE(buttons.at(0)->toolTip(), u"Find a setting (Ctrl+F)"_s);
    QCOMPARE(buttons.at(1)->toolTip(), u"Help on this page (F1)"_s);
    box(u"PageSize"_s)->setFocus();
    QTest::mouseClick(buttons.at(0), Qt::LeftButton);
    QVERIFY(m_window->findChild<SearchBar *>()->field()->hasFocus());
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);
    QVERIFY(box(u"PageSize"_s)->hasFocus());
    QTest::mouseClick(buttons.at(1), Qt::LeftButton);
    QVERIFY(m_window->findChild<HelpPage *>()->isVisible());
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);

    buttons.at(0)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
    QVERIFY(buttons.at(1)->hasFocus());
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
    QVERIFY(m_window->findChild<HelpPage *>()->isVisible() && m_system.submitted.isEmpty());
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);
    QVERIFY(buttons.at(1)->hasFocus());
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
    QCOMPARE(qobject_cast<QPushButton *>(m_window->focusWidget())->text().remove(u'&'), u"Cancel"_s);
}

void FindSettingTest::helpOfEveryPage()
{
    QSet<QString> texts;
    const int pages = m_window->book()->list()->count();
    for (int page = 0; page < pages; ++page) {
        m_window->book()->showPage(page);
        m_window->book()->list()->setFocus();
        QTest::keyClick(m_window.get(), Qt::Key_F1);
        auto *help = m_window->findChild<HelpPage *>();
        QVERIFY(help && help->isVisible());
        QVERIFY2(help->text().startsWith(m_window->book()->titleOf(page)), qPrintable(help->text()));
        QCoreApplication::processEvents();
        QCOMPARE(help->browser()->verticalScrollBar()->value(), 0);
        texts.insert(help->text());
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);
        QVERIFY(m_window->isVisible() && !help->isVisible() && m_window->book()->list()->hasFocus());
    }
    QCOMPARE(texts.size(), pages);
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    auto *help = m_window->findChild<HelpPage *>();
    Q_EMIT help->browser()->anchorClicked(QUrl(u"finding.md"_s));
    QVERIFY(help->text().startsWith(u"Finding Your Way"_s));
    Q_EMIT help->browser()->anchorClicked(QUrl(u"file:///etc/passwd"_s)); // is not followed
    Q_EMIT help->browser()->anchorClicked(QUrl(u"../../passwd.md"_s));
    QVERIFY(help->text().startsWith(u"Finding Your Way"_s));
    QTest::keyClick(m_window.get(), Qt::Key_PageUp, Qt::ControlModifier); // is replaced by a page
    QVERIFY(!help->isVisible());
}

// Each language has all pages, and all links have a target.
void FindSettingTest::helpSpeaksEveryLanguage()
{
    const QString host = sourcePath("/host/help/");
    const QString bundle = buildPath("/bin/OrbM880.bundle/help/");
    const QStringList pages = filesIn(host + u"en"_s) + filesIn(bundle + u"en"_s);
    QVERIFY(pages.size() > 6);
    static const QRegularExpression link(u"\\]\\(([^)]*)\\)"_s);
    for (const QString &language : {u"en"_s, u"de"_s, u"fr"_s, u"ja"_s, u"es"_s, u"it"_s}) {
        QCOMPARE(filesIn(host + language) + filesIn(bundle + language), pages);
        for (const QString &page : pages) {
            QFile file(u":/help/%1/%2"_s.arg(language, page));
            if (!file.exists())
                file.setFileName(bundle + language + u'/' + page);
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
            const QString text = QString::fromUtf8(file.readAll());
            QVERIFY2(text.startsWith(u"# "_s), qPrintable(file.fileName()));
            for (auto links = link.globalMatch(text); links.hasNext();) {
                const QString target = links.next().captured(1);
                QVERIFY2(pages.contains(target), qPrintable(file.fileName() + u": "_s + target));
            }
        }
    }
}

void FindSettingTest::controlsSayWhatTheyAreFor()
{
    m_window->finishLater();
    QTRY_VERIFY(m_window->findChild<QWidget *>(u"page-set"_s)); // created after the first paint
    search(u"toner"_s);
    for (int page = 0; page < m_window->book()->list()->count(); ++page) {
        m_window->book()->showPage(page);
        QCoreApplication::processEvents();
        QCOMPARE(unexplained(m_window.get()).join(u"|"_s), QString());
    }
    for (const auto purpose : {PresetDialog::Purpose::Save, PresetDialog::Purpose::Rename}) {
        PresetDialog dialog(purpose, u"a"_s, {}, true, nullptr);
        dialog.setAttribute(Qt::WA_DeleteOnClose, false);
        dialog.show();
        QCOMPARE(unexplained(&dialog).join(u"|"_s), QString());
    }
    QStringList ofLogin(u"not seen"_s);
    QTimer::singleShot(0, this, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        ofLogin = unexplained(dialog);
        dialog->close();
    });
    (void)askForLogin({}, m_window.get());
    QCOMPARE(ofLogin.join(u"|"_s), QString());
    m_window->book()->showPage(m_window->book()->pageNamed(u"print-mode"_s));
    platform::ChoiceBox *mode = box(u"PrintMode"_s);
    mode->setFocus();
    const QString help = QAccessible::queryAccessibleInterface(mode)->text(QAccessible::Help);
    QVERIFY2(help.startsWith(u"How the printer treats the job"_s), qPrintable(help));
    QTest::keyClick(mode, Qt::Key_F1, Qt::ShiftModifier);
    const auto shows = [] {
        for (const QWidget *top : QApplication::topLevelWidgets()) {
            if (top->isVisible() && top->inherits("QWhatsThat"))
                return true;
        }
        return false;
    };
    QVERIFY(shows());
    QTest::keyClick(mode, Qt::Key_Escape);
}

// A screen reader names a box by its label, and may query a scroll area for a widget that was just removed
// from it.
void FindSettingTest::readersFindTheirWay()
{
    QTRY_VERIFY(m_window->findChild<QWidget *>(u"page-border"_s));
    for (auto *choices : m_window->findChildren<platform::ChoiceBox *>()) {
        if (choices->isVisible())
            QVERIFY2(!QAccessible::queryAccessibleInterface(choices)->relations(QAccessible::Label).isEmpty(),
                     qPrintable(choices->objectName() + u" has no label"_s));
    }
    for (auto *area : m_window->findChildren<QScrollArea *>()) {
        QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(area);
        QVERIFY(reader->child(0) && !reader->child(reader->childCount()));
    }
}

QTEST_MAIN(FindSettingTest)
#include "find_setting_test.moc"
