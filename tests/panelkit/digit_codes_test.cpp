// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/digit_codes.h"
#include "platform/exception.h"
#include "tests/panelkit/sample_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>

class DigitCodesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void filtersWhileTyping_data();
    void filtersWhileTyping();
    void filtersWhatIsPasted();
    void keepsTheCursorInItsPlace();
    void padsWhenEditingEnds_data();
    void padsWhenEditingEnds();
    void composesDigitsInOrder();
    void decomposesIntoDigits();
    void refusesShortCodes();

private:
    std::unique_ptr<platform::TextField> m_field;
    int m_beeps = 0;
};

void DigitCodesTest::init()
{
    m_beeps = 0;
    m_field = std::make_unique<platform::TextField>();
    m_field->setDelegate(std::make_shared<QVCodeAssistant_M880>([this] { ++m_beeps; }));
}

void DigitCodesTest::filtersWhileTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    QTest::addColumn<int>("beeps");
    QTest::newRow("letter between digits") << QStringLiteral("12a34") << QStringLiteral("1234") << 1;
    QTest::newRow("sixth digit") << QStringLiteral("123456") << QStringLiteral("12345") << 1;
    QTest::newRow("letter after five digits") << QStringLiteral("12345x") << QStringLiteral("12345") << 1;
    QTest::newRow("nothing to remove") << QStringLiteral("00420") << QStringLiteral("00420") << 0;
    QTest::newRow("signs and blanks") << QStringLiteral("-1 2+") << QStringLiteral("12") << 3;
}

void DigitCodesTest::filtersWhileTyping()
{
    QFETCH(QString, typed);
    QTest::keyClicks(m_field.get(), typed);
    QTEST(m_field->text(), "left");
    QTEST(m_beeps, "beeps");
}

void DigitCodesTest::filtersWhatIsPasted()
{
    const auto paste = [this](const QString &text) {
        QApplication::clipboard()->setText(text);
        QTest::keySequence(m_field.get(), QKeySequence::Paste);
        return m_field->text();
    };
    QCOMPARE(paste(QStringLiteral("abc")), QString());
    QCOMPARE(paste(QStringLiteral("a1b2c3d4e5f6")), QStringLiteral("12345"));
    QCOMPARE(m_beeps, 2); // once a change, however much was removed
    m_field->clear();
    const QString arabicIndic = QStringLiteral("٤٢");
    QCOMPARE(paste(arabicIndic), arabicIndic);
    QCOMPARE(m_beeps, 2);
}

void DigitCodesTest::keepsTheCursorInItsPlace()
{
    QTest::keyClicks(m_field.get(), QStringLiteral("12345"));
    m_field->setCursorPosition(1);
    QTest::keyClicks(m_field.get(), QStringLiteral("9"));
    QCOMPARE(m_field->text(), QStringLiteral("19234"));
    QCOMPARE(m_field->cursorPosition(), 2);
    m_field->setCursorPosition(5);
    QTest::keyClicks(m_field.get(), QStringLiteral("x"));
    QCOMPARE(m_field->cursorPosition(), 5);
}

void DigitCodesTest::padsWhenEditingEnds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("code");
    const auto row = [](const char *text, const char *code) {
        QTest::addRow("\"%s\"", text) << QString::fromUtf8(text) << QString::fromUtf8(code);
    };
    row("42", "00042");
    row("", "00000");
    row("0", "00000");
    row("99999", "99999");
    row("٤٢", "00042");
    // What typing cannot leave behind, but a program can.
    row("12x", "00000");
    row("99999x", "99999");
    row("99998x", "00000");
    row("abc", "00000");
    row(" 7 ", "00007");
}

void DigitCodesTest::padsWhenEditingEnds()
{
    QFETCH(QString, text);
    QFETCH(QString, code);
    QTest::keyClicks(m_field.get(), QStringLiteral("1"));
    m_field->setText(text);
    QSignalSpy committed(m_field.get(), &platform::TextField::stringValueCommitted);
    QTest::keyClick(m_field.get(), Qt::Key_Return);
    QCOMPARE(m_field->text(), code);
    QCOMPARE(m_field->stringValue(), code);
    QCOMPARE(committed.count(), 1);
}

namespace {

QByteArray digitOptions()
{
    QByteArray body;
    for (char position = '1'; position <= '5'; ++position)
        body += ppdOption(QByteArray("DCDigit") + position, {"0", "1", "2", "3", "4", "5"});
    return body + ppdOption("No1", {"7"}) + ppdOption("No2", {"8"}) + ppdOption("No3", {"9"});
}

const QString prefix = QStringLiteral("DCDigit");
const QStringList digitKeys{QStringLiteral("DCDigit1"), QStringLiteral("DCDigit2"),
                            QStringLiteral("DCDigit3"), QStringLiteral("DCDigit4"),
                            QStringLiteral("DCDigit5"), QStringLiteral("No1"),
                            QStringLiteral("No2"),      QStringLiteral("No3")};

} // namespace

void DigitCodesTest::composesDigitsInOrder()
{
    const SampleDialog dialog(digitOptions());
    SamplePanel panel(dialog, digitKeys);
    QCOMPARE(panel.composeCodeForOption(prefix), QStringLiteral("00000"));
    for (int i = 0; i < 5; ++i)
        panel.setValueForKey(QString::number(i + 1), digitKeys[i]);
    QCOMPARE(panel.composeCodeForOption(prefix), QStringLiteral("12345"));
    QCOMPARE(panel.composeCodeForOption(QStringLiteral("No")),
             QStringLiteral("78")); // as many as the prefix is long
}

void DigitCodesTest::decomposesIntoDigits()
{
    const SampleDialog dialog(digitOptions());
    SamplePanel panel(dialog, digitKeys);
    panel.decomposeCodeForOption(QStringLiteral("01230"), prefix);
    QStringList digits;
    for (int i = 0; i < 5; ++i)
        digits.append(panel.valueForKey(digitKeys[i]).toString());
    QCOMPARE(digits.join(u','), QStringLiteral("0,1,2,3,0"));
}

void DigitCodesTest::refusesShortCodes()
{
    const SampleDialog dialog(digitOptions());
    SamplePanel panel(dialog, digitKeys);
    QVERIFY_EXCEPTION_THROWN(panel.decomposeCodeForOption(QStringLiteral("1234"), prefix),
                             platform::Exception);
    QCOMPARE(panel.composeCodeForOption(prefix), QStringLiteral("00000"));
}

QTEST_MAIN(DigitCodesTest)
#include "digit_codes_test.moc"
