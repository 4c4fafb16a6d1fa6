// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/page_counter.h"
#include "host/session/booklet.h"
#include "host/session/forced_choice.h"
#include "host/session/setting_keys.h"
#include "host/window/look/change_mark.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/general_page.h"
#include "host/window/pages/job_cost_label.h"
#include "host/window/pages/page_book.h"
#include "host/window/preview/preview_pane.h"
#include "platform/choice_box.h"
#include "tests/host/window_fixture.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/paths.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPdfWriter>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QWheelEvent>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

const QString report = sourcePath("/demo/report.pdf");

} // namespace

// The settings that the general page sends, and its list of documents.
class GeneralPageTest : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void layoutIsSent_data();
    void layoutIsSent();
    void scaledDocumentIsSent();
    void unchangedDocumentIsNotScaled();
    void wheelNeedsTheFocus_data();
    void wheelNeedsTheFocus();
    void layoutIsUndone();
    void bookletIsFolded();
    void documentIsLeftOut();
    void rangeBeyondTheEnd_data();
    void rangeBeyondTheEnd();
    void colorIsChosen_data();
    void colorIsChosen();
    void colorOfTheQueueIsShown_data();
    void colorOfTheQueueIsShown();
    void costIsShown();
    void pdfIsWritten();
    void titleOfALaterDocument();

private:
    QPushButton *button(const QString &text);
    QLineEdit *fieldOf(const QString &label) const;
};

QPushButton *GeneralPageTest::button(const QString &text)
{
    for (auto *button : m_window->findChildren<QPushButton *>()) {
        if (button->text().remove(u'&') == text)
            return button;
    }
    return nullptr;
}

QLineEdit *GeneralPageTest::fieldOf(const QString &label) const
{
    for (const auto *each : m_window->findChildren<QLabel *>()) {
        if (each->text().remove(u'&') == label)
            return qobject_cast<QLineEdit *>(each->buddy());
    }
    return nullptr;
}

void GeneralPageTest::layoutIsSent_data()
{
    QTest::addColumn<QMap<QString, QString>>("defaults"); // of the queue
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");               // chosen by the user
    QTest::addColumn<QMap<QString, QString>>("sent"); // null if not sent
    using Map = QMap<QString, QString>;
    QTest::newRow("several") << Map() << u"number-up"_s << u"4"_s << Map{{u"number-up"_s, u"4"_s}};
    QTest::newRow("usual") << Map() << u"number-up"_s << u"1"_s << Map{{u"number-up"_s, {}}};
    QTest::newRow("default") << Map{{u"number-up"_s, u"2"_s}} << u"number-up"_s << u"1"_s
                             << Map{{u"number-up"_s, u"1"_s}};
    QTest::newRow("border") << Map() << u"page-border"_s << u"double"_s
                            << Map{{u"page-border"_s, u"double"_s}};
    QTest::newRow("landscape") << Map() << u"orientation-requested"_s << u"4"_s
                               << Map{{u"orientation-requested"_s, u"4"_s}, {u"landscape"_s, {}}};
    QTest::newRow("against an older name")
        << Map{{u"landscape"_s, u"true"_s}} << u"orientation-requested"_s << u"3"_s
        << Map{{u"orientation-requested"_s, u"3"_s}, {u"landscape"_s, u"false"_s}};
    QTest::newRow("fit") << Map() << u"print-scaling"_s << u"fit"_s
                         << Map{{u"print-scaling"_s, u"fit"_s}, {u"fit-to-page"_s, u"true"_s}};
    QTest::newRow("actual size") << Map{{u"fit-to-page"_s, u"true"_s}} << u"print-scaling"_s << u"none"_s
                                 << Map{{u"print-scaling"_s, u"none"_s}, {u"fit-to-page"_s, u"false"_s}};
    QTest::newRow("scale") << Map{{u"natural-scaling"_s, u"70"_s}} << u"natural-scaling"_s << u"100"_s
                           << Map{{u"natural-scaling"_s, u"100"_s}};
    QTest::newRow("odd") << Map() << u"page-set"_s << u"odd"_s << Map{{u"page-set"_s, u"odd"_s}};
    QTest::newRow("reverse") << Map() << u"outputorder"_s << u"reverse"_s
                             << Map{{u"outputorder"_s, u"reverse"_s}};
    QTest::newRow("mirror") << Map() << u"mirror"_s << u"true"_s << Map{{u"mirror"_s, u"true"_s}};
    QTest::newRow("not mirror") << Map{{u"mirror"_s, u"yes"_s}} << u"mirror"_s << u"false"_s
                                << Map{{u"mirror"_s, u"false"_s}};
    QTest::newRow("not reverse") << Map{{u"outputorder"_s, u"reverse"_s}} << u"outputorder"_s << u"normal"_s
                                 << Map{{u"outputorder"_s, u"normal"_s}};
}

void GeneralPageTest::layoutIsSent()
{
    using Map = QMap<QString, QString>;
    QFETCH(const Map, defaults);
    QFETCH(const QString, name);
    QFETCH(const QString, value);
    QFETCH(const Map, sent);
    for (Destination &printer : m_system.printers)
        printer.options.insert(defaults);
    open();
    if (auto *box = find<QCheckBox>(name))
        box->setChecked(value == u"reverse" || value == u"true");
    else if (auto *number = find<QSpinBox>(name))
        number->setValue(value.toInt());
    else
        choose(name, value);
    printButton()->click();
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
    for (auto it = sent.begin(); it != sent.end(); ++it)
        QCOMPARE(sentValue(m_system.submitted.first().options, it.key()), it.value());
}

void GeneralPageTest::scaledDocumentIsSent()
{
    if (PageTools::installed().path(u"gs"_s).isEmpty())
        QSKIP("ghostscript is not installed");
    openWith({report});
    find<QSpinBox>(naturalScalingName)->setValue(70);
    printButton()->click();
    QTRY_COMPARE(m_system.submitted.size(), 1);
    const Document sent = m_system.submitted.first().documents.first();
    QVERIFY(sent.path != report && sent.format == u"application/pdf");
    QCOMPARE(sent.name, u"report.pdf"_s);
}

void GeneralPageTest::unchangedDocumentIsNotScaled()
{
    openWith({report});
    find<QSpinBox>(naturalScalingName)->setValue(70);
    m_window->session()->noteChosen({u"raw"_s, u"true"_s, ChosenSetting::Kind::JobOption});
    printButton()->click();
    QTRY_VERIFY(m_window->findChild<MessageBar *>()->text().contains(u"They cannot be scaled."_s));
    QVERIFY(m_system.submitted.isEmpty());
}

void GeneralPageTest::wheelNeedsTheFocus_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : {naturalScalingName, u"copies"_s})
        QTest::newRow(qPrintable(name)) << name;
}

// A field without the focus ignores the wheel, and the page scrolls instead.
void GeneralPageTest::wheelNeedsTheFocus()
{
    QFETCH(const QString, name);
    open();
    auto *number = find<QSpinBox>(name);
    const QPointF middle = number->rect().center();
    const auto turn = [&] {
        QWheelEvent event(middle, number->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(number, &event);
        return event.isAccepted();
    };
    find<QComboBox>(u"number-up"_s)->setFocus();
    const int before = number->value();
    QVERIFY(number->focusPolicy() == Qt::StrongFocus && !turn());
    QCOMPARE(number->value(), before);
    number->setFocus();
    QVERIFY(turn() && number->value() > before);
}

void GeneralPageTest::layoutIsUndone()
{
    open();
    choose(u"orientation-requested"_s, u"4"_s);
    find<QSpinBox>(u"natural-scaling"_s)->setValue(70);
    QTRY_VERIFY(find<ChangeMark>());
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(m_window->session()->general().layout, PageLayoutSettings());
    QCOMPARE(find<QComboBox>(u"orientation-requested"_s)->currentIndex(), 0);
    QCOMPARE(find<QSpinBox>(u"natural-scaling"_s)->value(), 100);
    QTRY_VERIFY(!find<ChangeMark>());
}

// A booklet selects two-sided printing on the short edge, and disables settings that have no effect on it.
void GeneralPageTest::bookletIsFolded()
{
    for (QByteArray &ppd : m_system.ppds) {
        ppd.replace("*CloseUI: *Duplex\n", "*Duplex DuplexTumble/Short Edge: \"\"\n*CloseUI: *Duplex\n");
        ppd.replace("*CloseUI: *Staple\n", "*Staple Saddle/Saddle: \"\"\n*CloseUI: *Staple\n");
        ppd += ppdGroup("More/More", ppdOption("MirrorPrint/Mirror", {"False/No", "True/Yes"}));
    }
    openWith({report});
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    settle();
    auto *booklet = find<QCheckBox>(u"booklet"_s), *stitched = find<QCheckBox>(u"saddle-stitch"_s);
    auto *sides = find<platform::ChoiceBox>(u"Duplex"_s);
    auto *perSide = find<QComboBox>(u"number-up"_s);
    QVERIFY(booklet && stitched && !stitched->isEnabled() && perSide->isEnabled());
    QVERIFY(!find<QCheckBox>(u"mirror"_s)); // the PPD has its own option for that
    booklet->click();
    QCOMPARE(sides->currentData().toString(), u"DuplexTumble"_s);
    settle();                                                        // creates an undo step
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier); // undoes both settings at once
    QTRY_VERIFY(!booklet->isChecked());
    QCOMPARE(sides->currentData().toString(), u"DuplexNoTumble"_s);
    booklet->click();
    QCOMPARE(sides->currentData().toString(), u"DuplexTumble"_s);
    QVERIFY(!sides->isItemEnabled(sides->findData(u"DuplexNoTumble"_s)));
    QVERIFY(!perSide->isEnabled() && !find<QComboBox>(u"number-up-layout"_s)->isEnabled());
    const ForcedChoice longEdge = forcedChoice(m_window->session(), u"Duplex"_s, u"DuplexNoTumble"_s);
    QCOMPARE(longEdge.changes, Resolution{bookletChoice(false)}); // what the greyed choice offers
    stitched->click();
    if (hasPreview())
        QTRY_COMPARE(find<JobCostLabel>()->text(), u"1 sheets, 2 sides, color"_s);
    printButton()->click();
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
    const QList<JobOption> sent = m_system.submitted.first().options;
    QCOMPARE(sentValue(sent, u"booklet"_s), u"true"_s);
    QCOMPARE(sentValue(sent, u"Duplex"_s), u"DuplexTumble"_s);
    QCOMPARE(sentValue(sent, u"Staple"_s), u"Saddle"_s);
    booklet->click();
    QCOMPARE(sides->currentData().toString(), u"DuplexNoTumble"_s);
    QVERIFY(!stitched->isChecked() && perSide->isEnabled());
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"Staple"_s), u"Off"_s);
    booklet->click();
    choose(u"Duplex"_s, u"None"_s);
    settle();
    Q_EMIT find<PrinterPicker>()->picked(u"attic"_s);
    QTRY_COMPARE(m_window->session()->destination().queue, u"attic"_s);
    QVERIFY(m_window->session()->general().layout.isBooklet());
    QCOMPARE(m_window->session()->ppd()->markedChoice(u"Duplex"_s), u"None"_s); // the later choice
}

void GeneralPageTest::documentIsLeftOut()
{
    openWith({report, m_document.fileName()});
    auto *list = find<QListWidget>();
    for (auto *candidate : m_window->findChildren<QListWidget *>())
        list = candidate->count() == 2 && candidate->item(0)->text() == u"report.pdf" ? candidate : list;
    list->item(0)->setCheckState(Qt::Unchecked);
    list->item(1)->setCheckState(Qt::Unchecked);
    printButton()->click();
    settle();
    QVERIFY(m_system.submitted.isEmpty());
    list->item(1)->setCheckState(Qt::Checked);
    printButton()->click();
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
    QCOMPARE(m_system.submitted.first().documents.size(), 1);
    QCOMPARE(m_system.submitted.first().documents.first().path, m_document.fileName());
}

void GeneralPageTest::rangeBeyondTheEnd_data()
{
    QTest::addColumn<bool>("severalDocuments");
    QTest::addColumn<QString>("pages"); // the message
    QTest::addColumn<QString>("sides");
    QTest::newRow("one") << false << u"The document has only 2 pages."_s
                         << u"There are only 1 printed sides."_s;
    QTest::newRow("several") << true << u"The longest document, “report.pdf”, has only 2 pages."_s
                             << u"The longest document, “report.pdf”, has only 1 printed sides."_s;
}

// In a window that is too small for a preview.
void GeneralPageTest::rangeBeyondTheEnd()
{
    if (!hasPreview())
        QSKIP("cups-filters or poppler-utils is not installed");
    QFETCH(const bool, severalDocuments);
    QFETCH(const QString, pages);
    QFETCH(const QString, sides);
    openWith(severalDocuments ? QStringList{m_document.fileName(), report} : QStringList(report), {500, 500});
    QVERIFY(!find<PreviewPane>()->isVisible());
    auto *page = find<GeneralPage>();
    QTRY_VERIFY(find<QWidget>(u"page-set"_s)); // created after the first paint
    for (auto *radio : page->findChildren<QRadioButton *>())
        radio->setChecked(radio->text().remove(u'&').contains(u"Range"_s));
    auto *field = find<QLineEdit>(u"page-ranges"_s);
    QTest::keyClicks(field, u"2-9,12"_s);
    QTRY_COMPARE(page->problem(), pages);
    QTRY_COMPARE(field->accessibleDescription(), pages);
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(page->problem(), QString());
    choose(u"number-up"_s, u"2"_s);
    QTRY_COMPARE(page->problem(), sides);
    if (severalDocuments) {
        auto *documents = page->findChild<QListWidget *>();
        documents->item(0)->setCheckState(Qt::Unchecked);
        QTRY_COMPARE(page->problem(), u"There are only 1 printed sides."_s);
    }
}

void GeneralPageTest::colorIsChosen_data()
{
    QTest::addColumn<QByteArray>("keyword"); // replaces ColorType
    QTest::addColumn<bool>("hasPanel");
    QTest::newRow("a panel's") << QByteArray("ColorType") << true;
    QTest::newRow("of another maker") << QByteArray("ColorModel") << false;
}

void GeneralPageTest::colorIsChosen()
{
    QFETCH(const QByteArray, keyword);
    QFETCH(const bool, hasPanel);
    const QString name = QString::fromLatin1(keyword);
    for (QByteArray &ppd : m_system.ppds)
        ppd.replace("ColorType", keyword);
    PrintWindow &window = open();
    FakePanel *colour = nullptr;
    if (hasPanel) {
        auto panel = std::make_unique<FakePanel>(u"Colour"_s, QStringList(name), window.session());
        colour = panel.get();
        platform::PrintDialogPanels panels;
        panels.push_back(std::move(panel));
        adoptPanels(window.session(), std::move(panels));
        window.showSession();
        window.book()->showPage(1); // restores it
        window.book()->showPage(0);
    }
    choose(name, u"Mono"_s);
    if (colour)
        QCOMPARE(colour->valueForKey(name).toString(), u"Mono"_s);
    QString summed;
    for (const SummarySection &section : window.session()->summary()) {
        for (const auto &[option, value] : section.entries)
            summed += option == u"Colour Mode" ? section.title + u": "_s + value : QString();
    }
    // once, in the section of its page
    QCOMPARE(summed, hasPanel ? QString() : u"General: Black and White"_s);
    window.print();
    settle();
    QCOMPARE(m_system.submitted.size(), 1);
    QCOMPARE(sentValue(m_system.submitted.first().options, name), u"Mono"_s);
}

void GeneralPageTest::colorOfTheQueueIsShown_data()
{
    QTest::addColumn<QString>("keyword");
    for (const char *keyword : {"ColorModel", "ColorMode", "ColorType"})
        QTest::newRow(keyword) << QString::fromLatin1(keyword);
}

// Filters print gray for "print-color-mode", whatever the option of the PPD.
void GeneralPageTest::colorOfTheQueueIsShown()
{
    QFETCH(const QString, keyword);
    const QMap<QString, QString> gray{{u"print-color-mode"_s, u"monochrome"_s}};
    for (QByteArray &ppd : m_system.ppds)
        ppd.replace("ColorType", keyword.toLatin1()).replace("Mono", "Gray");
    m_system.printers.first().options = m_system.printers.first().queueDefaults = gray;
    PrintWindow &window = open();
    QCOMPARE(find<QComboBox>(keyword)->currentText(), u"Black and White"_s);
    window.print();
    settle();
    QCOMPARE(sentValue(m_system.submitted.last().options, keyword), u"Gray"_s);
    open();
    choose(keyword, u"Auto"_s);
    m_window->print();
    settle();
    QCOMPARE(sentValue(m_system.submitted.last().options, u"print-color-mode"_s), u"color"_s);
    // The server has this one for every color printer.
    m_system.printers.first().options =
        m_system.printers.first().queueDefaults = {{u"print-color-mode"_s, u"color"_s}};
    open();
    QCOMPARE(find<QComboBox>(keyword)->currentText(), u"Automatic"_s);
}

void GeneralPageTest::costIsShown()
{
    if (!hasPreview())
        QSKIP("cups-filters or poppler-utils is not installed");
    openWith({report});
    const auto *label = find<JobCostLabel>();
    QTRY_COMPARE(label->text(), u"2 sheets, color"_s);
    choose(u"Duplex"_s, u"DuplexNoTumble"_s);
    QTRY_COMPARE(label->text(), u"1 sheets, 2 sides, color"_s); // tests have no plural forms
    find<QSpinBox>(u"copies"_s)->setValue(3);
    QTRY_COMPARE(label->text(), u"3 sheets, 6 sides, color"_s);
    choose(u"ColorType"_s, u"Mono"_s);
    QTRY_COMPARE(label->text(), u"3 sheets, 6 sides, black and white"_s);
    QTemporaryDir folder;
    const QString mixed = folder.filePath(u"mixed.pdf"_s);
    {
        QPdfWriter writer(mixed);
        QPainter painter(&writer); // A4
        writer.setPageOrientation(QPageLayout::Landscape);
        writer.newPage();
        writer.setPageSize(QPageSize(QPageSize::A3));
        writer.newPage();
    }
    openWith({mixed});
    QTRY_COMPARE(find<JobCostLabel>()->text(), u"3 sheets, color, pages of different sizes"_s);
    openWith({sourcePath("/demo/README.md"), u"/dev/null"_s});
    settle();
    QCOMPARE(find<JobCostLabel>()->text(), QString()); // one of them cannot be counted
}

void GeneralPageTest::pdfIsWritten()
{
    if (!hasPreview())
        QSKIP("cups-filters or poppler-utils is not installed");
    const QTemporaryDir folder;
    PrintTask task;
    task.files = {sourcePath("/demo/note.txt")};
    task.title = u"../Page 1/2"_s;
    openTask(task);
    // Reverse order of two-sided pages begins with the blank back of the last sheet.
    QVERIFY(m_window->session()->markChoice(u"Duplex"_s, u"DuplexNoTumble"_s));
    chooseGeneral(m_window->session(), u"outputorder"_s, u"reverse"_s);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    button(u"Save as PDF…"_s)->click();
    QTRY_VERIFY(find<QFileDialog>());
    auto *dialog = find<QFileDialog>();
    QCOMPARE(dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->text(), u"-Page 1-2.pdf"_s);
    dialog->setDirectory(folder.path());
    dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(folder.filePath(u"out"_s));
    QMetaObject::invokeMethod(dialog, "accept");
    QTRY_VERIFY(m_window->findChild<MessageBar *>()->isShowing());
    QVERIFY2(m_window->findChild<MessageBar *>()->kind() == MessageBar::Kind::Success,
             qPrintable(m_window->findChild<MessageBar *>()->text()));
    QFile file(folder.filePath(u"out.pdf"_s));
    QVERIFY(file.open(QIODevice::ReadOnly) && file.read(4) == "%PDF");
    QVERIFY(m_system.submitted.isEmpty() && printButton()->isEnabled());
    PageCounter counter(PageTools::installed());
    counter.count({file.fileName()}, {});
    QTRY_COMPARE(counter.pagesOf(file.fileName()), 2);
}

// An application that prints later may use the same title for all its documents.
void GeneralPageTest::titleOfALaterDocument()
{
    PrintTask task;
    task.settingsOnly = true;
    task.title = u"Print"_s;
    const PrintWindow &window = openTask(task);
    QLineEdit *field = nullptr;
    QTRY_VERIFY(field = fieldOf(u"Title:"_s));
    QCOMPARE(field->text(), u"Print"_s);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, u"Letter"_s);
    QCOMPARE(window.jobTitle(), u"Letter"_s);

    openWith({report}); // uses its own name
    QTRY_VERIFY(button(u"Save as PDF…"_s));
    QVERIFY(!fieldOf(u"Title:"_s));
}

QTEST_MAIN(GeneralPageTest)
#include "general_page_test.moc"
