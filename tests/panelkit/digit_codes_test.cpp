// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/digit_codes.h"
#include "platform/exception.h"
#include "tests/panelkit/sample_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <tuple>

using namespace Qt::StringLiterals;

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

class DigitCodesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_beeps = 0;
        m_field = std::make_unique<platform::TextField>();
        m_field->setDelegate(std::make_shared<QVCodeAssistant_M880>([this] { ++m_beeps; }));
    }

    void filtersWhileTyping()
    {
        const std::tuple<QString, QString, int> cases[]{
            {u"12a34"_s, u"1234"_s, 1},  {u"123456"_s, u"12345"_s, 1}, {u"12345x"_s, u"12345"_s, 1},
            {u"00420"_s, u"00420"_s, 0}, {u"-1 2+"_s, u"12"_s, 3},
        };
        for (const auto &[typed, left, beeps] : cases) {
            init();
            QTest::keyClicks(m_field.get(), typed);
            QCOMPARE(m_field->text(), left);
            QCOMPARE(m_beeps, beeps);
        }
    }

    void filtersWhatIsPasted()
    {
        const auto paste = [this](const QString &text) {
            QApplication::clipboard()->setText(text);
            QTest::keySequence(m_field.get(), QKeySequence::Paste);
            return m_field->text();
        };
        QCOMPARE(paste(u"abc"_s), QString());
        QCOMPARE(paste(u"a1b2c3d4e5f6"_s), u"12345"_s);
        QCOMPARE(m_beeps, 2); // once per change, however much was removed
        m_field->clear();
        const QString arabicIndic = u"٤٢"_s;
        QCOMPARE(paste(arabicIndic), arabicIndic);
        QCOMPARE(m_beeps, 2);
        m_field->clear();
        const QString mathematical = QString::fromUcs4(U"\U0001D7DC\U0001D7DA\U0001D7D8x\U0001D7D9789", 8);
        QCOMPARE(paste(mathematical), QString::fromUcs4(U"\U0001D7DC\U0001D7DA\U0001D7D8\U0001D7D97", 5));
        QTest::keyClick(m_field.get(), Qt::Key_Return);
        QCOMPARE(m_field->stringValue(), u"42017"_s);
    }

    void undoSurvivesWhatIsRefused()
    {
        m_field->setText(u"00000"_s);
        m_field->selectAll();
        QTest::keyClicks(m_field.get(), u"12x3"_s);
        QCOMPARE(m_field->text(), u"123"_s);
        QApplication::clipboard()->setText(u"4y567"_s);
        QTest::keySequence(m_field.get(), QKeySequence::Paste);
        QCOMPARE(m_field->text(), u"12345"_s);
        QCOMPARE(m_beeps, 2);
        QStringList back;
        while (m_field->isUndoAvailable()) {
            QTest::keySequence(m_field.get(), QKeySequence::Undo);
            back += m_field->text();
        }
        QCOMPARE(back.last(), u"00000"_s);
        QCOMPARE(back.filter(QRegularExpression(u"[^0-9]"_s)), QStringList());
        QTest::keySequence(m_field.get(), QKeySequence::Redo);
        QVERIFY(m_field->text() != u"00000"_s);
        QCOMPARE(m_beeps, 2);
    }

    void keepsTheCursorInItsPlace()
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

    void padsWhenEditingEnds()
    {
        const std::pair<QString, QString> cases[]{
            {u"42"_s, u"00042"_s},
            {u""_s, u"00000"_s},
            {u"0"_s, u"00000"_s},
            {u"99999"_s, u"99999"_s},
            {u"٤٢"_s, u"00042"_s},
            // Values that cannot be typed, but can be set by a program.
            {u"12x"_s, u"00000"_s},
            {u"99999x"_s, u"99999"_s},
            {u"99998x"_s, u"00000"_s},
            {u"abc"_s, u"00000"_s},
            {u" 7 "_s, u"00007"_s},
        };
        for (const auto &[text, code] : cases) {
            init();
            QTest::keyClicks(m_field.get(), u"1"_s);
            m_field->setText(text);
            QSignalSpy committed(m_field.get(), &platform::TextField::stringValueCommitted);
            QTest::keyClick(m_field.get(), Qt::Key_Return);
            QCOMPARE(m_field->text(), code);
            QCOMPARE(m_field->stringValue(), code);
            QCOMPARE(committed.count(), 1);
        }
    }

    void composesAndDecomposes()
    {
        const SampleDialog dialog(digitOptions());
        SamplePanel panel(dialog, digitKeys);
        QCOMPARE(panel.composeCodeForOption(prefix), u"00000"_s);
        panel.decomposeCodeForOption(u"01234"_s, prefix);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(panel.valueForKey(digitKeys[i]), QVariant(QString::number(i)));
        QCOMPARE(panel.composeCodeForOption(prefix), u"01234"_s);
        QVERIFY_EXCEPTION_THROWN(panel.decomposeCodeForOption(u"4321"_s, prefix), platform::Exception);
        QCOMPARE(panel.composeCodeForOption(prefix), u"01234"_s);
        QCOMPARE(panel.composeCodeForOption(u"No"_s), u"78"_s); // as many digits as the prefix is long
    }

private:
    std::unique_ptr<platform::TextField> m_field;
    int m_beeps = 0;
};

QTEST_MAIN(DigitCodesTest)
#include "digit_codes_test.moc"
