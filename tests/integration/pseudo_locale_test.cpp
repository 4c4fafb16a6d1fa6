// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/guide/search_bar.h"
#include "host/window/look/color_scheme.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/print_window.h"
#include "platform/background.h"
#include "tests/host/family_printer.h"
#include "tests/support/paths.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSlider>
#include <QTabBar>
#include <QTest>
#include <QTextDocumentFragment>

#include <algorithm>

using namespace host;
using namespace Qt::StringLiterals;

namespace {

const QString folder = buildPath("/tests/pseudo/");

bool hasLetters(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

// The part of a text outside the brackets of the artificial language.
QString outside(const QString &text)
{
    QString rest;
    int depth = 0;
    for (const QChar c : text) {
        depth += c == u'⟦' ? 1 : 0;
        if (depth == 0)
            rest += c;
        depth -= c == u'⟧' && depth > 0 ? 1 : 0;
    }
    return rest;
}

// Items of lists count as texts of their box.
QStringList textsOf(const QWidget *widget)
{
    QStringList texts{widget->property("text").toString(),
                      widget->toolTip(),
                      widget->accessibleName(),
                      widget->accessibleDescription(),
                      widget->whatsThis(),
                      widget->property("placeholderText").toString()};
    if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
        for (int i = 0; i < box->count(); ++i)
            texts += {box->itemText(i), box->itemData(i, Qt::ToolTipRole).toString()};
    }
    if (const auto *list = qobject_cast<const QListWidget *>(widget)) {
        for (int i = 0; i < list->count(); ++i)
            texts += list->item(i)->text();
    }
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts += tabs->accessibleTabName(i);
    }
    return texts;
}

QString describe(const QWidget *widget)
{
    return u"%1 \"%2\" (%3)"_s.arg(QString::fromLatin1(widget->metaObject()->className()),
                                   widget->objectName(), textsOf(widget).first());
}

bool isControl(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    return (label && !label->text().isEmpty()) || qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QSlider *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QLineEdit *>(widget);
}

} // namespace

// Every page in an artificial language of long, accented words, from left to right and mirrored, to detect
// untranslated, truncated and overlapping texts.
class PseudoLocaleTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void everyPage_data();
    void everyPage();

private:
    void noteForeign();
    void checkTexts();
    void checkRoom();
    void checkMirrored();
    void takePicture(const QString &page) const;

    FamilyPrintSystem m_system;
    QStringList m_foreign; // texts of the PPD and the printer, the longest first
    std::unique_ptr<PrintWindow> m_window;
};

void PseudoLocaleTest::initTestCase()
{
    noteForeign();
}

void PseudoLocaleTest::noteForeign()
{
    const QByteArray family = FamilyPrintSystem::familyPpd(u"kelm880.ppd"_s);
    const auto ppd = openPpd(family.mid(family.indexOf('\n') + 1));
    QVERIFY(ppd);
    for (const QString &keyword : ppd->optionKeywords()) {
        const auto option = ppd->option(keyword);
        m_foreign += {option->text, option->groupText};
        for (const PpdOption::Choice &choice : option->choices)
            m_foreign += choice.text;
    }
    const Destination &office = m_system.printers.first();
    m_foreign += {office.displayName(), office.queue,    office.info,
                  office.makeAndModel,  office.location, u"report.pdf"_s};
    m_foreign.removeAll(QString());
    std::sort(m_foreign.begin(), m_foreign.end(),
              [](const QString &a, const QString &b) { return a.size() > b.size(); });
}

void PseudoLocaleTest::everyPage_data()
{
    QTest::addColumn<QSize>("room");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("scheme");
    QTest::newRow("left to right") << QSize(1366, 768) << Qt::LeftToRight << u"light"_s;
    QTest::newRow("right to left") << QSize(1366, 768) << Qt::RightToLeft << u"dark"_s;
    QTest::newRow("small, right to left") << QSize(640, 512) << Qt::RightToLeft << u"light"_s;
}

void PseudoLocaleTest::everyPage()
{
    QFETCH(const QSize, room);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QString, scheme);
    const QString language = direction == Qt::RightToLeft ? folder + u"rtl/"_s : folder + u"ltr/"_s;
    QObject texts;
    QVERIFY(speakCatalog(language + u"kelmar-print_pseudo.qm"_s, &texts));
    applyColorScheme(scheme);
    QApplication::setLayoutDirection(direction);
    Extensions extensions({language + u"OrbM880.bundle"_s});
    PrintTask task;
    task.files = {sourcePath("/demo/report.pdf")};
    m_window = std::make_unique<PrintWindow>(m_system, extensions, task);
    m_window->findChild<WindowLayout *>()->setRoom(room);
    PrintError error;
    QVERIFY(m_window->open(&error));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTRY_VERIFY(m_window->session());
    QCOMPARE(m_window->session()->panels().count(), 3);
    m_window->session()->markChoice(u"MediaType"_s, u"Thick1"_s);
    m_window->session()->markChoice(u"Duplex"_s, u"DuplexTumble"_s);
    m_window->print();
    const int pages = m_window->book()->list()->count();
    for (int page = 0; page < pages; ++page) {
        m_window->book()->showPage(page);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        checkTexts();
        checkRoom();
        checkMirrored();
        takePicture(QString::number(page));
        if (QTest::currentTestFailed())
            qInfo() << "on page" << page;
    }
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(m_window->focusWidget(), u"600"_s);
    checkTexts();
    takePicture(u"search"_s);
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    takePicture(u"help"_s);
    m_window->findChild<MessageBar *>()->buttons().at(1)->click();
    QTRY_VERIFY(m_window->submission());
    checkTexts();
    checkRoom();
    takePicture(u"result"_s);
    QTRY_VERIFY(!platform::Background::isUnderWay());
    QCoreApplication::processEvents();
    m_window.reset();
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void PseudoLocaleTest::checkTexts()
{
    static const QRegularExpression addedKey(u"\\(&.\\)"_s);
    QList<QWidget *> widgets = m_window->findChildren<QWidget *>();
    widgets.append(m_window.get());
    for (const QWidget *widget : std::as_const(widgets)) {
        const bool isInner = widget->objectName().startsWith(u"qt_"_s);
        if (!widget->isVisible() || isInner)
            continue;
        for (QString text :
             textsOf(widget) + QStringList(widget == m_window.get() ? widget->windowTitle() : QString())) {
            if (text.startsWith(u'<'))
                text = QTextDocumentFragment::fromHtml(text).toPlainText();
            QString rest = outside(text).remove(addedKey);
            for (const QString &foreign : std::as_const(m_foreign))
                rest.remove(foreign);
            if (hasLetters(rest))
                QTest::qFail(qPrintable(u"not translated: \"%1\" of %2"_s.arg(text, describe(widget))),
                             __FILE__, __LINE__);
        }
    }
}

void PseudoLocaleTest::checkRoom()
{
    QList<const QWidget *> controls;
    for (const QWidget *widget : m_window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->visibleRegion().isEmpty() || !isControl(widget) ||
            qobject_cast<const QAbstractSpinBox *>(widget->parentWidget()))
            continue;
        controls.append(widget);
        const auto *label = qobject_cast<const QLabel *>(widget);
        const QSize wanted = label && label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                                        : widget->minimumSizeHint();
        const auto *box = qobject_cast<const QComboBox *>(widget);
        if (box && box->sizeAdjustPolicy() == QComboBox::AdjustToMinimumContentsLengthWithIcon)
            continue; // may be narrower than its texts
        if (wanted.width() > widget->width() || wanted.height() > widget->height())
            QTest::qFail(qPrintable(u"clipped: %1, %2x%3 of %4x%5"_s.arg(describe(widget))
                                        .arg(widget->width())
                                        .arg(widget->height())
                                        .arg(wanted.width())
                                        .arg(wanted.height())),
                         __FILE__, __LINE__);
    }
    for (qsizetype i = 0; i < controls.size(); ++i) {
        const QRect place(controls[i]->mapTo(m_window.get(), QPoint()), controls[i]->size());
        for (qsizetype j = i + 1; j < controls.size(); ++j) {
            const QRect other(controls[j]->mapTo(m_window.get(), QPoint()), controls[j]->size());
            if (controls[i]->parentWidget() == controls[j]->parentWidget() && place.intersects(other))
                QTest::qFail(qPrintable(describe(controls[i]) + u" overlaps "_s + describe(controls[j])),
                             __FILE__, __LINE__);
        }
    }
}

// The list of pages comes first, and labels precede their fields.
void PseudoLocaleTest::checkMirrored()
{
    const bool isMirrored = m_window->layoutDirection() == Qt::RightToLeft;
    const auto begins = [&](const QWidget *a, const QWidget *b) {
        const int x = a->mapTo(m_window.get(), QPoint()).x();
        const int other = b->mapTo(m_window.get(), QPoint()).x();
        return isMirrored ? x > other : x < other;
    };
    QVERIFY(begins(m_window->book()->list(), m_window->book()->pages()));
    for (const QLabel *label : m_window->findChildren<QLabel *>()) {
        if (label->isVisible() && label->buddy() && label->buddy()->isVisible() &&
            !begins(label, label->buddy()))
            QTest::qFail(qPrintable(describe(label) + u" stands behind its field"_s), __FILE__, __LINE__);
    }
    for (const QSlider *slider : m_window->findChildren<QSlider *>())
        QCOMPARE(slider->layoutDirection(), m_window->layoutDirection());
}

void PseudoLocaleTest::takePicture(const QString &page) const
{
    const QString target = qEnvironmentVariable("KELMAR_PICTURES");
    if (!target.isEmpty())
        m_window->grab().save(QDir(target).filePath(
            u"pseudo_%1_%2.png"_s.arg(QString::fromLatin1(QTest::currentDataTag()).remove(u' '), page)));
}

QTEST_MAIN(PseudoLocaleTest)
#include "pseudo_locale_test.moc"
