// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/value_transformers.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ValueTransformersTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsBooleans_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("transformed");    // by the transformer
        QTest::addColumn<bool>("firstCharacter"); // by the function
        const auto text = [](const char *value, bool transformed, bool firstCharacter) {
            QTest::addRow("\"%s\"", value)
                << QVariant(QString::fromUtf8(value)) << transformed << firstCharacter;
        };
        text("TRUE", true, true);
        text("Enabled", true, false);
        text("YES", true, true);
        text("1", true, true);
        text("-1", true, false);
        text(" 7", true, false);
        text("01", true, false);
        text("9x", true, true);
        text("Yesterday", false, true);
        text("T", false, true);
        text("False", false, false);
        text("no", false, false);
        text("None", false, false);
        text("0", false, false);
        text("", false, false);
        text("\u00b2", false, false); // superscript two
        text("\u0663", true, false);  // Arabic-Indic digit three
        QTest::newRow("null") << QVariant() << true << false;
        QTest::newRow("true") << QVariant(true) << true << true;
        QTest::newRow("false") << QVariant(false) << false << false;
        QTest::newRow("0") << QVariant(0) << false << false;
        QTest::newRow("2") << QVariant(2) << true << true;
        QTest::newRow("long 2") << QVariant::fromValue(2L) << true << true;
        QTest::newRow("short 2") << QVariant::fromValue(short(2)) << true << true;
        QTest::newRow("byte 2") << QVariant::fromValue(uchar(2)) << true << true;
        QTest::newRow("-0.25") << QVariant(-0.25) << false << true;
        QTest::newRow("list") << QVariant(QVariantList{1}) << false << false;
    }

    void readsBooleans()
    {
        QFETCH(QVariant, value);
        QFETCH(bool, transformed);
        QFETCH(bool, firstCharacter);
        const QVariant result = QVBooleanTransformer_M880().transformedValue(value);
        QCOMPARE(result.metaType(), QVBooleanTransformer_M880().transformedValueClass());
        QCOMPARE(result.toBool(), transformed);
        QCOMPARE(QVBooleanValue(value), firstCharacter);
    }

    void convertsNumbers()
    {
        const std::pair<QVariant, int> cases[]{
            {u"600dpi"_s, 600}, {u"  -5"_s, -5}, {u"abc"_s, 0},
            {u"-"_s, 0},        {5, 5},          {QVariant::fromValue<signed char>(7), 7},
            {true, 1},          {{}, 0},         {u"-99999999999999999999"_s, INT_MIN},
        };
        for (const auto &[value, number] : cases) {
            const QVariant result = QVNumberTransformer_M880().transformedValue(value);
            QCOMPARE(result.metaType(), QMetaType::fromType<int>());
            QCOMPARE(result.toInt(), number);
        }
    }

    void writesTexts()
    {
        const QVBooleanTransformer_M880 boolean;
        QCOMPARE(boolean.reverseTransformedValue(true), QVariant(u"True"_s));
        QCOMPARE(boolean.reverseTransformedValue(u"yes"_s), QVariant(u"True"_s));
        QCOMPARE(boolean.reverseTransformedValue({}), QVariant(u"False"_s));
        const QVNumberTransformer_M880 number;
        QCOMPARE(number.reverseTransformedValue(0).metaType(), QMetaType::fromType<QString>());
        QCOMPARE(number.reverseTransformedValue(-5), QVariant(u"-5"_s));
        QVERIFY(!number.reverseTransformedValue({}).isValid());
    }
};

QTEST_APPLESS_MAIN(ValueTransformersTest)
#include "value_transformers_test.moc"
