// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/digit_codes.h"
#include "platform/exception.h"
#include "tests/panelkit/sample_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

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
    QTest::newRow("letter between digits") << u"12a34"_s << u"1234"_s << 1;
    QTest::newRow("sixth digit") << u"123456"_s << u"12345"_s << 1;
    QTest::newRow("letter after five digits") << u"12345x"_s << u"12345"_s << 1;
    QTest::newRow("nothing to remove") << u"00420"_s << u"00420"_s << 0;
    QTest::newRow("signs and blanks") << u"-1 2+"_s << u"12"_s << 3;
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
    QCOMPARE(paste(u"abc"_s), QString());
    QCOMPARE(paste(u"a1b2c3d4e5f6"_s), u"12345"_s);
    QCOMPARE(m_beeps, 2); // once a change, however much was removed
    m_field->clear();
    const QString arabicIndic = u"٤٢"_s;
    QCOMPARE(paste(arabicIndic), arabicIndic);
    QCOMPARE(m_beeps, 2);
}

void DigitCodesTest::keepsTheCursorInItsPlace()
{
    QTest::keyClicks(m_field.get(), u"12345"_s);
    m_field->setCursorPosition(1);
    QTest::keyClicks(m_field.get(), u"9"_s);
    QCOMPARE(m_field->text(), u"19234"_s);
    QCOMPARE(m_field->cursorPosition(), 2);
    m_field->setCursorPosition(5);
    QTest::keyClicks(m_field.get(), u"x"_s);
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
    QTest::keyClicks(m_field.get(), u"1"_s);
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

const QString prefix = u"DCDigit"_s;
const QStringList digitKeys{u"DCDigit1"_s, u"DCDigit2"_s, u"DCDigit3"_s, u"DCDigit4"_s,
                            u"DCDigit5"_s, u"No1"_s,      u"No2"_s,      u"No3"_s};

} // namespace

void DigitCodesTest::composesDigitsInOrder()
{
    const SampleDialog dialog(digitOptions());
    SamplePanel panel(dialog, digitKeys);
    QCOMPARE(panel.composeCodeForOption(prefix), u"00000"_s);
    for (int i = 0; i < 5; ++i)
        panel.setValueForKey(QString::number(i + 1), digitKeys[i]);
    QCOMPARE(panel.composeCodeForOption(prefix), u"12345"_s);
    QCOMPARE(panel.composeCodeForOption(u"No"_s),
             u"78"_s); // as many as the prefix is long
}

void DigitCodesTest::decomposesIntoDigits()
{
    const SampleDialog dialog(digitOptions());
    SamplePanel panel(dialog, digitKeys);
    panel.decomposeCodeForOption(u"01230"_s, prefix);
    QStringList digits;
    for (int i = 0; i < 5; ++i)
        digits.append(panel.valueForKey(digitKeys[i]).toString());
    QCOMPARE(digits.join(u','), u"0,1,2,3,0"_s);
}

void DigitCodesTest::refusesShortCodes()
{
    const SampleDialog dialog(digitOptions());
    SamplePanel panel(dialog, digitKeys);
    QVERIFY_EXCEPTION_THROWN(panel.decomposeCodeForOption(u"1234"_s, prefix), platform::Exception);
    QCOMPARE(panel.composeCodeForOption(prefix), u"00000"_s);
}

QTEST_MAIN(DigitCodesTest)
#include "digit_codes_test.moc"
