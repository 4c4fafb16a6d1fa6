// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/preset_store.h"
#include "host/session/setting_keys.h"
#include "host/window/look/change_mark.h"
#include "host/window/look/link_label.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/job_page.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/presets/preset_dialog.h"
#include "host/window/printers/printer_picker.h"
#include "platform/binding.h"
#include "tests/host/preset_fixture.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimeEdit>

#include <sys/file.h>

using namespace host;
using namespace Qt::StringLiterals;

// Presets, marks and undo in the window with a print system without a server, operated with keys and clicks.
class ChangesTest : public PresetFixture
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void changesAreUndoneAndRedone();
    void resolutionIsOneStep();
    void fieldKeepsItsOwnUndo();
    void markTakesTheChangeBack();
    void panelsControlsAreUndoneAndMarked();
    void presetIsOneStepHoweverLongItTakes();
    void summaryShowsChangesAndLeadsToThem();
    void jobSettingsAreSentUndoneAndSummed();
    void presetIsCorrected_data();
    void presetIsCorrected();
    void presetIsSavedAppliedRenamedAndDeleted();
    void lastUsedIsOfferedWithoutCodes();
    void presetActionsStayWithTheirPrinter();

private:
    QString marked(const QString &keyword) const { return m_window->session()->ppd()->markedChoice(keyword); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        m_window->activateWindow(); // after a dialog, since there is no window manager
        if (!QTest::qWaitForWindowActive(m_window.get()))
            qFatal("the window is not active");
        QWidget *focus = m_window->focusWidget();
        QTest::keyClick(focus ? focus : m_window.get(), key, modifiers);
        settle();
    }
    void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    QList<ChangeMark *> marks()
    {
        QList<ChangeMark *> shown;
        for (auto *mark : m_window->findChildren<ChangeMark *>()) {
            if (mark->isVisible())
                shown.append(mark);
        }
        return shown;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void ChangesTest::init()
{
    WindowFixture::init();
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("HOME", m_folder->path().toLocal8Bit());
    qputenv("CUPS_SERVERROOT", m_folder->path().toLocal8Bit());
    qputenv("XDG_STATE_HOME", m_folder->path().toLocal8Bit() + "/state");
}

void ChangesTest::changesAreUndoneAndRedone()
{
    PrintWindow &window = open();
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    auto *copies = find<QSpinBox>(u"copies"_s);
    copies->setFocus();
    QTest::keyClick(copies, Qt::Key_Up);
    settle();
    window.book()->showPage(window.book()->pageNamed(u"more"_s));
    choose(u"Sharp"_s, u"1"_s);
    QCOMPARE(window.session()->general().copies, 2);
    undo();
    QCOMPARE(marked(u"Sharp"_s), u"0"_s);
    QCOMPARE(find<QComboBox>(u"Sharp"_s)->currentData().toString(), u"0"_s);
    undo();
    QCOMPARE(window.session()->general().copies, 1);
    QCOMPARE(copies->value(), 1);
    undo();
    QCOMPARE(marked(u"Duplex"_s), u"None"_s);
    undo(); // nothing is left to undo
    for (int i = 0; i < 3; ++i)
        redo();
    QCOMPARE(marked(u"Duplex"_s) + marked(u"Sharp"_s), u"DuplexNoTumble1"_s);
    QCOMPARE(copies->value(), 2);
    QCOMPARE(sentValue(window.session()->jobOptions(), u"Duplex"_s), u"DuplexNoTumble"_s);
}

void ChangesTest::resolutionIsOneStep()
{
    PrintWindow &window = open();
    window.book()->showPage(window.book()->pageNamed(u"more"_s));
    choose(u"Cyan"_s, u"2"_s);
    settle();
    choose(u"ColorType"_s, u"Mono"_s);
    QVERIFY(find<MessageBar>()->isShowing());
    find<MessageBar>()->buttons().first()->click(); // apply
    QVERIFY(window.session()->conflicts().isEmpty());
    const QString resolved = marked(u"Cyan"_s) + marked(u"ColorType"_s);
    undo();
    QCOMPARE(marked(u"Cyan"_s) + marked(u"ColorType"_s), u"2Mono"_s);
    QVERIFY(find<MessageBar>()->isShowing()); // the conflict appears again
    redo();
    QCOMPARE(marked(u"Cyan"_s) + marked(u"ColorType"_s), resolved);
    QVERIFY(!find<MessageBar>()->isShowing());
}

void ChangesTest::fieldKeepsItsOwnUndo()
{
    PrintWindow &window = open();
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    auto *pages = find<QLineEdit>(u"page-ranges"_s);
    QCOMPARE(pages->accessibleDescription(), u"Not available while “Pages” is “All”."_s);
    for (auto *radio : window.findChildren<QRadioButton *>()) {
        if (!radio->isChecked())
            radio->click();
    }
    pages->setFocus();
    QTest::keyClicks(pages, u"12"_s);
    undo();
    QVERIFY(pages->text() != u"12"_s);
    QCOMPARE(marked(u"Duplex"_s), u"DuplexNoTumble"_s);
    find<PageList>()->setFocus();
    for (int i = 0; i < 5; ++i)
        undo();
    QCOMPARE(marked(u"Duplex"_s), u"None"_s);

    auto *copies = find<QSpinBox>(u"copies"_s);
    copies->setValue(2);
    settle();
    find<QWidget>(u"multiple-document-handling"_s)->setFocus();
    undo(); // leaves a single copy
    QVERIFY(copies->hasFocus());
}

void ChangesTest::markTakesTheChangeBack()
{
    PrintWindow &window = open();
    QVERIFY(marks().isEmpty());
    PrintError error; // by a standard name, like -o
    QVERIFY(host::choose(window.session(),
                         {u"sides"_s, u"two-sided-long-edge"_s, ChosenSetting::Kind::JobOption}, &error));
    Q_EMIT window.session()->changed();
    settle();
    QCOMPARE(marks().size(), 1);
    auto *box = find<QComboBox>(u"Duplex"_s);
    QVERIFY2(box->accessibleDescription().contains(u"“Off”"_s), qPrintable(box->accessibleDescription()));
    box->setAccessibleDescription(u"Both sides"_s); // like a control with a description
    window.book()->showChanges();
    QVERIFY(box->accessibleDescription().contains(u"“Off”"_s));
    QVERIFY(box->accessibleDescription().endsWith(u"Both sides"_s));
    QVERIFY(find<PageList>()->tabToolTip(0).contains(u"changed"_s));
    QTest::mouseClick(marks().first(), Qt::LeftButton);
    settle();
    QCOMPARE(marked(u"Duplex"_s), u"None"_s);
    QVERIFY(!window.session()->chosen().contains(u"Duplex"_s));
    QVERIFY(marks().isEmpty());
    QCOMPARE(box->accessibleDescription(), u"Both sides"_s);
    QVERIFY(box->hasFocus());
    undo();
    QCOMPARE(marked(u"Duplex"_s), u"DuplexNoTumble"_s);
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, {5, 5}, box->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(box, &asked);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(menu->actions().first()->text(), u"Back to “Off”"_s);
    menu->actions().first()->trigger();
    menu->close();
    settle();
    QCOMPARE(marked(u"Duplex"_s), u"None"_s);
    QCOMPARE(window.session()->chosen().contains(u"Duplex"_s), false);
}

void ChangesTest::panelsControlsAreUndoneAndMarked()
{
    PrintWindow &window = open();
    auto made =
        std::make_unique<FakePanel>(u"Colour"_s, QStringList({u"ColorType"_s, u"Cyan"_s}), window.session());
    FakePanel *panel = made.get();
    panel->onSet = [panel](const QString &key, const QString &choice) {
        if (key == u"ColorType"_s && choice == u"Mono"_s) // like the real panel, which locks its sliders
            panel->setValueForKey(u"0"_s, u"Cyan"_s);
    };
    auto *box = new QComboBox(panel->panelView());
    box->addItems({u"00000"_s, u"12345"_s});
    platform::Binding::bind(box, u"currentText"_s, panel, u"code"_s);
    platform::PrintDialogPanels panels;
    panels.push_back(std::move(made));
    adoptPanels(window.session(), std::move(panels));
    window.showSession();
    window.book()->showPage(1);
    panel->setValueForKey(u"2"_s, u"Cyan"_s);
    box->setCurrentIndex(1);
    settle();
    QCOMPARE(marks().size(), 1);
    panel->setValueForKey(u"Mono"_s, u"ColorType"_s);
    window.session()->save();
    window.book()->showPage(0);
    QCOMPARE(marked(u"Cyan"_s) + marked(u"ColorType"_s), u"0Mono"_s);
    undo();
    QCOMPARE(marked(u"Cyan"_s) + marked(u"ColorType"_s), u"2Auto"_s);
    QCOMPARE(panel->valueForKey(u"Cyan"_s).toString(), u"2"_s);
    undo();
    QCOMPARE(panel->code(), u"00000"_s);
    redo();
    redo();
    QCOMPARE(marked(u"Cyan"_s) + marked(u"ColorType"_s) + panel->code(), u"0Mono12345"_s);
    QCOMPARE(panel->restored, 1); // no device is queried
}

// While a panel queries its device, the session reports the settings applied so far.
void ChangesTest::presetIsOneStepHoweverLongItTakes()
{
    PrintWindow &window = open();
    DialogSession *session = window.session();
    auto made = std::make_unique<FakePanel>(u"Colour"_s, QStringList({u"ColorType"_s, u"Cyan"_s}), session);
    made->onSet = [session](const QString &, const QString &) { Q_EMIT session->changed(); };
    platform::PrintDialogPanels panels;
    panels.push_back(std::move(made));
    adoptPanels(session, std::move(panels));
    window.showSession();
    window.book()->showPage(1);
    PrintError error;
    QVERIFY(PresetStore().save(u"office"_s, {u"grey"_s, {{u"ColorType"_s, u"Mono"_s}, {u"Sharp"_s, u"1"_s}}},
                               &error));
    trigger(u"grey"_s);
    QVERIFY2(presets()->text().trimmed().endsWith(u"grey"_s), qPrintable(presets()->text())); // not changed
    QCOMPARE(marked(u"ColorType"_s) + marked(u"Sharp"_s), u"Mono1"_s);
    undo();
    QCOMPARE(marked(u"ColorType"_s) + marked(u"Sharp"_s), u"Auto0"_s);
}

void ChangesTest::summaryShowsChangesAndLeadsToThem()
{
    PrintWindow &window = open();
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    chooseGeneral(window.session(), u"copies"_s, u"3"_s);
    window.book()->showPage(window.book()->pageNamed(u"summary"_s));
    QCheckBox *only = nullptr;
    for (auto *box : window.findChildren<QCheckBox *>()) {
        if (box->isVisible())
            only = box;
    }
    QVERIFY(only);
    QTest::mouseClick(only, Qt::LeftButton, {}, {8, only->height() / 2});
    QStringList texts;
    for (const auto *label : only->parentWidget()->findChildren<QLabel *>())
        texts.append(label->text());
    QVERIFY2(texts.contains(u"Off → Long Edge"_s) && texts.contains(u"1 → 3"_s),
             qPrintable(texts.join(u'|')));
    QVERIFY(!texts.contains(u"A4"_s));
    for (auto *link : window.findChildren<LinkLabel *>()) {
        if (link->text() == u"Two-Sided"_s)
            QTest::mouseClick(link, Qt::LeftButton);
    }
    settle();
    QVERIFY(find<QComboBox>(u"Duplex"_s)->hasFocus());
}

void ChangesTest::jobSettingsAreSentUndoneAndSummed()
{
    Destination &office = m_system.printers.first();
    office.options = {{u"job-priority"_s, u"75"_s}, {u"job-sheets"_s, u"standard"_s}};
    office.coverSheets = {u"none"_s, u"standard"_s, u"secret"_s, u"acme"_s};
    PrintWindow &window = open();
    const auto sent = [&window](const QString &name) {
        return sentValue(window.session()->jobOptions(), name);
    };
    window.book()->showPage(window.book()->pageNamed(u"job"_s));
    auto *page = find<JobPage>();
    const auto sheets = page->findChildren<QComboBox *>(u"job-sheets"_s);
    QCOMPARE(find<QComboBox>(u"job-priority"_s)->currentText(), u"High"_s);
    QCOMPARE(sheets.value(0)->currentText() + sheets.value(1)->currentText(), u"StandardNone"_s);
    QVERIFY(sheets.value(0)->findText(u"acme"_s) >= 0); // only on this server
    choose(u"job-priority"_s, u"100"_s);
    settle();
    choose(u"job-hold-until"_s, u"time"_s);
    auto *time = page->findChild<QTimeEdit *>();
    QVERIFY(time->isEnabled());
    time->setTime(QTime(21, 30));
    settle();
    const QString hold = sent(u"job-hold-until"_s);
    const QDateTime moment(QDate::currentDate(), QTime(21, 30));
    QCOMPARE(hold, moment.toUTC().time().toString(u"HH:mm"_s)); // the server uses UTC
    sheets.value(1)->setCurrentIndex(sheets.value(1)->findData(u"secret"_s));
    Q_EMIT sheets.value(1)->activated(0);
    settle();
    QTest::keyClicks(page->findChild<QLineEdit *>(u"job-billing"_s), u"Project 7"_s);
    settle();
    QCOMPARE(sent(u"job-sheets"_s), u"standard,secret"_s);
    QCOMPARE(sent(u"job-billing"_s), u"Project 7"_s);
    const SummarySection summary = window.session()->summary().last();
    QCOMPARE(summary.title, u"Job"_s);
    QCOMPARE(summary.entries.size(), 4);
    QVERIFY(summary.entries.contains(SummaryEntry(u"Cover sheets"_s, u"Standard before, Secret after"_s)));
    const PageList *list = window.book()->list();
    QVERIFY(list->tabToolTip(list->currentIndex()).contains(u"changed"_s));
    while (window.session()->chosen().contains(u"job-billing"_s))
        undo();
    undo();
    QCOMPARE(sent(u"job-sheets"_s), u"standard"_s);
    choose(u"job-priority"_s, u"75"_s); // the queue's default is not sent as a choice of the user
    QVERIFY(!window.session()->chosen().contains(u"job-priority"_s));
    window.print();
    settle();
    QCOMPARE(sentValue(m_system.submitted.first().options, u"job-hold-until"_s), hold);
}

void ChangesTest::presetIsCorrected_data()
{
    // "stored": null for a default of the queue. "chosen": then on the page Job. "sent": as "name".
    for (const char *column : {"stored", "value", "chosen", "name", "sent", "notice"})
        QTest::addColumn<QString>(column);
    const QString none, hold = u"job-hold-until"_s, priority = u"job-priority"_s;
    QTest::newRow("backs of a booklet")
        << u"booklet"_s << u"true"_s << none << u"Duplex"_s << u"DuplexTumble"_s << none;
    QTest::newRow("backs of the queue's booklet")
        << none << u"true"_s << none << u"Duplex"_s << u"DuplexTumble"_s << none;
    QTest::newRow("hold") << hold << u"evening"_s << u"no-hold"_s << hold << none << none;
    QTest::newRow("priority") << priority << u"75"_s << u"50"_s << priority << none << none;
    QTest::newRow("hold in capitals") << hold << u"Evening"_s << none << hold << u"evening"_s << none;
    QTest::newRow("no hold") << hold << u"frob"_s << none << hold << none << u"job-hold-until takes"_s;
    QTest::newRow("no priority") << priority << u"900"_s << none << priority << none
                                 << u"job-priority takes a number from 1 to 100."_s;
    QTest::newRow("no scale") << naturalScalingName << u"900"_s << none << naturalScalingName << none
                              << u"natural-scaling takes whole numbers from 25 to 400."_s;
}

void ChangesTest::presetIsCorrected()
{
    QFETCH(const QString, chosen);
    QFETCH(const QString, name);
    QFETCH(const QString, notice);
    m_system.ppds[u"office"_s].replace("*CloseUI: *Duplex\n",
                                       "*Duplex DuplexTumble/Short Edge: \"\"\n*CloseUI: *Duplex\n");
    m_system.printers.first().options = {{u"sides"_s, u"two-sided-long-edge"_s}};
    QFETCH(const QString, stored);
    QFETCH(const QString, value);
    if (stored.isNull())
        m_system.printers.first().options.insert(u"booklet"_s, value);
    PrintWindow &window = open();
    PrintError error;
    choose(u"Duplex"_s, u"None"_s);
    if (!stored.isNull())
        QVERIFY(PresetStore().save(u"office"_s, {u"p"_s, {{stored, value}}}, &error));
    trigger(stored.isNull() ? u"Printer’s Defaults"_s : u"p"_s);
    QVERIFY2(find<MessageBar>()->text().contains(notice), qPrintable(find<MessageBar>()->text()));
    if (!chosen.isNull()) {
        window.book()->showPage(window.book()->pageNamed(u"job"_s));
        choose(name, chosen);
        settle();
    }
    QTEST(sentValue(window.session()->jobOptions(), name), "sent");
    if (stored.isNull())
        return;
    trigger(u"Save “p”"_s);
    QTEST(PresetStore().list(u"office"_s, &error)->value(0).options.value(name), "sent");
}

void ChangesTest::presetIsSavedAppliedRenamedAndDeleted()
{
    PrintWindow &window = open();
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    trigger(u"Save As…"_s);
    auto *dialog = find<PresetDialog>();
    auto *name = dialog->findChild<QLineEdit *>();
    QTest::keyClicks(name, u"two sided"_s);
    auto *ok = dialog->findChild<QPushButton *>();
    QVERIFY(!ok->isEnabled() || ok->text().contains(u"Cancel"_s));
    name->clear();
    QTest::keyClicks(name, u"both"_s);
    QTest::keyClick(name, Qt::Key_Return);
    settle();
    QVERIFY2(presets()->text().contains(u"both"_s), qPrintable(presets()->text()));
    QVERIFY(marks().isEmpty()); // changes are shown against the saved preset
    PrintError error;
    QCOMPARE(PresetStore().list(u"office"_s, &error)->value(0).options.value(u"Duplex"_s),
             u"DuplexNoTumble"_s);
    choose(u"PageSize"_s, u"A3"_s);
    settle();
    QVERIFY2(presets()->text().contains(u"both (changed)"_s), qPrintable(presets()->text()));
    trigger(u"Printer’s Defaults"_s);
    QCOMPARE(marked(u"Duplex"_s) + marked(u"PageSize"_s), u"NoneA4"_s);
    trigger(u"both"_s);
    QCOMPARE(marked(u"Duplex"_s) + marked(u"PageSize"_s), u"DuplexNoTumbleA4"_s);
    QCOMPARE(sentValue(window.session()->jobOptions(), u"Duplex"_s), u"DuplexNoTumble"_s);
    undo();
    undo();
    QCOMPARE(marked(u"Duplex"_s) + marked(u"PageSize"_s), u"DuplexNoTumbleA3"_s);
    QVERIFY(presets()->text().contains(u"both (changed)"_s));
    trigger(u"Rename “both”…"_s);
    name = find<PresetDialog>()->findChild<QLineEdit *>();
    name->setText(u"duplex"_s);
    QTest::keyClick(name, Qt::Key_Return);
    settle();
    QVERIFY(menuTexts().contains(u"duplex"_s) && !menuTexts().contains(u"both"_s));
    trigger(u"Delete “duplex”…"_s);
    auto *question = find<QMessageBox>();
    for (auto *button : question->buttons()) {
        if (question->buttonRole(button) == QMessageBox::AcceptRole)
            button->click();
    }
    settle();
    QVERIFY(!menuTexts().contains(u"duplex"_s));
    // The settings are kept, so they differ from the initial values of the printer.
    QCOMPARE(marked(u"Duplex"_s) + marked(u"PageSize"_s), u"DuplexNoTumbleA3"_s);
    QVERIFY2(presets()->text().contains(u"Defaults (changed)"_s), qPrintable(presets()->text()));
    QCOMPARE(marks().size(), 2);
    undo(); // undo does not return to a deleted preset
    undo();
    redo();
    QVERIFY2(!presets()->text().contains(u"both"_s) && !presets()->text().contains(u"duplex"_s),
             qPrintable(presets()->text()));
    redo();
    QVERIFY(PresetStore().list(u"office"_s, &error)->isEmpty());
    trigger(u"Use as My Default for This Printer"_s);
    QCOMPARE(PresetStore().list(u"office"_s, &error)->value(0).options.value(u"PageSize"_s), u"A3"_s);
    QVERIFY(menuTexts().contains(u"My Defaults"_s));
}

void ChangesTest::lastUsedIsOfferedWithoutCodes()
{
    open();
    Protection protection;
    protection.secrets.append({u"code"_s, {u"Sharp"_s}, u"Duplex"_s, u"DuplexNoTumble"_s});
    m_window->session()->setProtection(protection);
    QVERIFY(!menuTexts().contains(u"Last Used"_s));
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    m_window->session()->markChoice(u"Sharp"_s, u"1"_s); // represents a code
    printButton()->click();
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
    QFile kept(m_folder->filePath(u"state/kelmar-print/last-used"_s));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), "Dest office Duplex=DuplexNoTumble\n");
    QCOMPARE(kept.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    open();
    trigger(u"Last Used"_s);
    QCOMPARE(marked(u"Duplex"_s) + marked(u"Sharp"_s), u"DuplexNoTumble0"_s);
}

// An open menu and pending work on a file do not affect the printer that is selected meanwhile.
void ChangesTest::presetActionsStayWithTheirPrinter()
{
    open();
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    PrintError error;
    QVERIFY(PresetStore().save(u"office"_s, {u"grey"_s, {{u"ColorType"_s, u"Mono"_s}}}, &error));
    const PresetStore::Files files = PresetStore::filesOfCups();
    QFile lock((files.writesForAllUsers ? files.allUsers : files.users) + u".kelmar-lock"_s);
    QVERIFY(lock.open(QIODevice::ReadWrite));
    const qsizetype place = menuTexts().indexOf(u"Use as My Default for This Printer"_s);
    QMenu *menu = presets()->menu();
    QAction *save = menu->actions().value(place);
    QVERIFY(save);
    QCOMPARE(::flock(lock.handle(), LOCK_EX), 0); // by another program, for a moment
    save->trigger();
    menu->popup({});
    QPointer<QAction> grey;
    for (QAction *action : menu->actions()) {
        if (action->text() == u"grey"_s)
            grey = action;
    }
    QVERIFY(grey && menu->isVisible());
    Q_EMIT find<PrinterPicker>()->picked(u"attic"_s);
    QTRY_COMPARE(m_window->session()->destination().queue, u"attic"_s);
    QVERIFY(!grey && !menu->isVisible());
    lock.close();
    settle();
    QCOMPARE(PresetStore().list(u"office"_s, &error)->size(), 2);
    QVERIFY2(!presets()->text().contains(u"My Defaults"_s), qPrintable(presets()->text()));
}

QTEST_MAIN(ChangesTest)
#include "changes_test.moc"
