// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/messages/message_bar.h"

#include "host/window/pages/page_list.h"
#include "tests/host/window_fixture.h"

#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QTest>

#include <functional>

using namespace host;
using namespace Qt::StringLiterals;

// Messages of the window with a print system without a server.
class MessageBarTest : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void conflictIsExplainedAndResolved();
    void noticesOutliveAQuestion();
    void textsCanBeSelected();
    void screenShowsEveryChange_data();
    void screenShowsEveryChange();
};

void MessageBarTest::conflictIsExplainedAndResolved()
{
    PrintWindow &window = open();
    // The list greys this pair out; a preset or a command line may still set it.
    window.session()->markChoice(u"ColorType"_s, u"Mono"_s);
    window.session()->markChoice(u"Cyan"_s, u"2"_s);
    printButton()->click();
    settle();
    QVERIFY(m_system.submitted.isEmpty());
    const QString text = window.findChild<MessageBar *>()->text();
    QVERIFY2(text.contains(u"Colour Mode: Black and White"_s) && text.contains(u"Cyan Balance: Plus 2"_s) &&
                 text.contains(u"Suggestion: Colour Mode: Automatic"_s),
             qPrintable(text));
    QCOMPARE(window.findChild<MessageBar *>()->buttons().size(), 3);
    window.findChild<MessageBar *>()->buttons().last()->click(); // keep and review
    QCOMPARE(window.session()->conflicts().size(), 1);
    printButton()->click();
    settle();
    window.findChild<MessageBar *>()->buttons().first()->click(); // apply
    QVERIFY(window.session()->conflicts().isEmpty());
    QVERIFY(!window.findChild<MessageBar *>()->isShowing());
    printButton()->click();
    settle();
    QCOMPARE(sentValue(m_system.submitted.value(0).options, u"Cyan"_s), u"2"_s);
}

void MessageBarTest::noticesOutliveAQuestion()
{
    PrintWindow &window = open();
    window.session()->markChoice(u"ColorType"_s, u"Mono"_s);
    window.session()->markChoice(u"Cyan"_s, u"2"_s);
    window.session()->addNotice(u"first"_s);
    printButton()->click();
    settle();
    const QString second = u"second "_s.repeated(30).trimmed(); // fills several lines next to a button
    window.session()->addNotice(second);
    printButton()->click();
    settle();
    MessageBar *bar = window.findChild<MessageBar *>();
    QCOMPARE(bar->kind(), MessageBar::Kind::Question);
    bar->buttons().last()->click(); // keep and review
    QCOMPARE(bar->kind(), MessageBar::Kind::Notice);
    QVERIFY2(bar->text().endsWith(u"first\n"_s + second), qPrintable(bar->text()));
    QCoreApplication::processEvents();
    const auto *texts = bar->findChild<QScrollArea *>();
    const auto areShown = [texts] {
        return texts->height() == texts->widget()->heightForWidth(texts->viewport()->width()) ||
               texts->verticalScrollBarPolicy() == Qt::ScrollBarAsNeeded;
    };
    QVERIFY(areShown() && texts->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff);
    QFont larger = window.font();
    larger.setPointSize(larger.pointSize() + 3);
    window.setFont(larger);
    QCoreApplication::processEvents();
    QVERIFY(areShown());
    bar->buttons().first()->click();
    QVERIFY(!bar->isShowing());
}

void MessageBarTest::textsCanBeSelected()
{
    PrintWindow &window = open();
    for (const QString &notice : {u"first"_s, u"second"_s}) { // the second one replaces a selectable text
        window.session()->addNotice(notice);
        Q_EMIT window.session()->changed();
        QCoreApplication::processEvents();
        QLabel *text = nullptr;
        for (auto *label : find<MessageBar>()->findChildren<QLabel *>())
            text = label->text().endsWith(notice) ? label : text;
        QVERIFY(text);
        const QPoint word(4, text->height() - 4);
        QTest::mouseMove(text, word);
        QCoreApplication::processEvents();
        QTest::mouseDClick(text, Qt::LeftButton, {}, word);
        QCOMPARE(text->selectedText(), notice);
        QTest::mouseMove(&window, QPoint(1, 1));
        QCoreApplication::processEvents();
    }
}

void MessageBarTest::screenShowsEveryChange_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

// Only what has changed is painted again; the window must look as if all of it had been.
void MessageBarTest::screenShowsEveryChange()
{
    QFETCH(const Qt::LayoutDirection, direction);
    PrintWindow &window = open();
    window.setLayoutDirection(direction);
    const auto onScreen = [&window] {
        for (int pass = 0; pass < 3; ++pass)
            QCoreApplication::processEvents();
        return window.screen()->grabWindow(window.winId()).toImage();
    };
    int notices = 0;
    const auto addNotice = [&] {
        window.session()->addNotice(u"notice %1"_s.arg(++notices));
        Q_EMIT window.session()->changed();
    };
    const auto closeBar = [this] { find<MessageBar>()->buttons().first()->click(); };
    const QList<std::function<void()>> changes{addNotice,
                                               addNotice, // the bar becomes higher
                                               closeBar,
                                               [&] { window.resize(520, 480); },
                                               addNotice,
                                               [&] { window.resize(900, 700); },
                                               [&] { find<PageList>()->setCurrentIndex(1); },
                                               closeBar};
    for (qsizetype step = 0; step < changes.size(); ++step) {
        changes.at(step)();
        const QImage shown = onScreen();
        window.update();
        QVERIFY2(onScreen() == shown, qPrintable(u"change %1"_s.arg(step)));
    }
}

QTEST_MAIN(MessageBarTest)
#include "message_bar_test.moc"
