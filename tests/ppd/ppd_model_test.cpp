// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/version_info.h"
#include "ppd/ppd_model.h"
#include "tests/support/inline_ppd.h"
#include "tests/support/recording_host.h"
#include "tests/support/test_bundle.h"

#include <QTest>

namespace {

// A model over a PPD written out in the test.
struct Model
{
    explicit Model(const QByteArray &body) : ppd(body), host(ppd.get()), model(QVPPD_M880::ppdWithHost(&host))
    {
        if (!model)
            qFatal("libcups refuses the PPD");
    }
    QVPPD_M880 *operator->() const { return model.get(); }

    InlinePpd ppd;
    RecordingHost host;
    std::shared_ptr<QVPPD_M880> model;
};

const QString colorType = QStringLiteral("ColorType");
const QString mono = QStringLiteral("Mono");
const QByteArray colorTypeOption =
    ppdOption("ColorType/Colour Type", {"Auto/Automatic", "Color/Colour", "Mono/Black & White"});
const QString longName = QStringLiteral("An40CharacterKeywordThatLibcupsCanStillHo");

} // namespace

class PpdModelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findsThePpd();
    void readsTheHead();
    void listsOptionsOnceInPpdOrder();
    void findsOptions_data();
    void findsOptions();
    void listsChoices();
    void hasNoChoicesForEmptyOptions();
    void tellsDefaultAndMarkedChoice();
    void marksOnlyStrings();
    void localizes();
    void leavesOutInvalidText();
    void readsRepeatedAttributes();
    void readsInstallableOptions();
    void turnsChoicesIntoDictionaries();
};

void PpdModelTest::findsThePpd()
{
    QVERIFY(!QVPPD_M880::ppdWithHost(nullptr));
    RecordingHost host;
    QVERIFY(!QVPPD_M880::ppdWithHost(&host));
    const InlinePpd ofSession("");
    host.session.ppd = ofSession.get();
    QCOMPARE(QVPPD_M880::ppdWithHost(&host)->cupsPPD(), ofSession.get());
    const InlinePpd ofHost("");
    host.ppd = ofHost.get();
    QCOMPARE(QVPPD_M880::ppdWithHost(&host)->cupsPPD(), ofHost.get());
}

void PpdModelTest::readsTheHead()
{
    const Model model(
        "*FileVersion: \"1.02\"\n*ModelName: \"KELMAR Orb \xc3\x9c\"\n*PCFileName: \"KELM880.PPD\"\n");
    QCOMPARE(model->version()->stringValue(), QStringLiteral("1.02.0"));
    QCOMPARE(model->modelname(), QStringLiteral("KELMAR Orb Ü"));
    QCOMPARE(model->ppdFilename(), QStringLiteral("KELM880.PPD"));
    const Model bare("");
    QVERIFY(!bare->version());
    QVERIFY(bare->modelname().isNull());
    QVERIFY(Model("*FileVersion: \"1.2.3.4\"\n")->version() == nullptr);
}

void PpdModelTest::listsOptionsOnceInPpdOrder()
{
    const Model model(ppdGroup("Second", ppdOption("Zeta", {"a"}) + ppdOption("Mu", {"a"})) +
                      ppdGroup("First", ppdOption("Alpha", {"a"})));
    const QStringList *options = &model->allOptions();
    QCOMPARE(*options, (QStringList{QStringLiteral("Zeta"), QStringLiteral("Mu"), QStringLiteral("Alpha")}));
    model->setCupsPPD(nullptr);
    QCOMPARE(&model->allOptions(), options);
    QCOMPARE(options->size(), 3);
}

void PpdModelTest::findsOptions_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("found");
    QTest::newRow("itself") << QStringLiteral("DINDigit1") << true;
    QTest::newRow("prefix of the first digit") << QStringLiteral("DINDigit") << true;
    QTest::newRow("another digit") << QStringLiteral("DINDigit2") << false;
    QTest::newRow("longest keyword") << longName.left(40) << true;
    QTest::newRow("longer than any keyword") << longName << false;
    QTest::newRow("cut by a null character") << QStringLiteral("DINDigit1") + QChar(u'\0') << false;
    QTest::newRow("nil") << QString() << false;
}

void PpdModelTest::findsOptions()
{
    QFETCH(QString, option);
    QFETCH(bool, found);
    // Libcups reads so long a keyword only without an asterisk and without a default.
    const QByteArray keyword = longName.left(40).toLatin1();
    const QByteArray longest =
        "*OpenUI " + keyword + ": PickOne\n*" + keyword + " 0: \"\"\n*CloseUI: " + keyword + "\n";
    const Model model(ppdOption("DINDigit1", {"0"}) + longest);
    QCOMPARE(model->hasOption(option), found);
}

void PpdModelTest::listsChoices()
{
    const Model model(colorTypeOption);
    const QStringList keywords{QStringLiteral("Auto"), QStringLiteral("Color"), mono};
    QCOMPARE(model->choicesForOption(colorType).value(), keywords);
    QStringList order;
    const auto texts = model->choicesWithValuesForOptionOrder(colorType, &order);
    QCOMPARE(order, keywords);
    QCOMPARE(texts.value(), (QMap<QString, QString>{{QStringLiteral("Auto"), QStringLiteral("Automatic")},
                                                    {QStringLiteral("Color"), QStringLiteral("Colour")},
                                                    {mono, QStringLiteral("Black & White")}}));
}

void PpdModelTest::hasNoChoicesForEmptyOptions()
{
    const Model model(ppdOption("Empty", {}));
    for (const QString &option : {QStringLiteral("Empty"), QStringLiteral("Missing")}) {
        QStringList order{QStringLiteral("untouched")};
        QVERIFY(!model->choicesForOption(option));
        QVERIFY(!model->choicesWithValuesForOptionOrder(option, &order));
        QVERIFY(!model->localizedChoicesForOptionWithBundle(option, nullptr));
        QVERIFY(!model->defaultChoiceForOption(option));
        QCOMPARE(order, QStringList{QStringLiteral("untouched")});
    }
    QVERIFY(model->hasOption(QStringLiteral("Empty")));
}

void PpdModelTest::tellsDefaultAndMarkedChoice()
{
    Model model(colorTypeOption +
                "*OpenUI *Odd: PickOne\n*DefaultOdd: Gone\n*Odd Here: \"\"\n*CloseUI: *Odd\n");
    model->markChoiceForOption(mono, colorType);
    QCOMPARE(model->markedChoiceForOption(colorType).value(),
             (QVPPDChoice_M880{mono, QStringLiteral("Black & White")}));
    QCOMPARE(model->defaultChoiceForOption(colorType).value(),
             (QVPPDChoice_M880{QStringLiteral("Auto"), QStringLiteral("Automatic")}));
    QVERIFY(!model->defaultChoiceForOption(QStringLiteral("Odd")));
    QVERIFY(!model->markedChoiceForOption(QStringLiteral("Odd")));
    model.ppd.unmarkAll();
    QVERIFY(!model->markedChoiceForOption(colorType));
    QVERIFY(model->localizedMarkedChoiceForOptionWithBundle(colorType, nullptr).isNull());
}

void PpdModelTest::marksOnlyStrings()
{
    const Model model(colorTypeOption + ppdOption("Copies", {"0", "1"}));
    const QString copies = QStringLiteral("Copies");
    model->markChoiceForOption(1, copies);
    model->markChoiceForOption(QVariant(), copies);
    model->markChoiceForOption(colorType, mono); // the wrong way round
    QCOMPARE(model->markedChoiceForOption(copies)->choice, QStringLiteral("0"));
    QCOMPARE(model->markedChoiceForOption(colorType)->choice, QStringLiteral("Auto"));
}

void PpdModelTest::localizes()
{
    TestBundle files;
    files.writeStrings(QStringLiteral("en"), QStringLiteral("Localizable"),
                       {{QStringLiteral("ColorType"), QStringLiteral("Colour mode")},
                        {QStringLiteral("ColorType:Mono"), QStringLiteral("Monochrome")}});
    const auto bundle = files.open();
    const Model model(colorTypeOption + ppdOption("Halftone/Half Tone", {"Auto"}));
    model->markChoiceForOption(mono, colorType);

    const auto texts = [&](const platform::Bundle *source) {
        QStringList result;
        const auto choices = model->localizedChoicesForOptionWithBundle(colorType, source);
        for (const QVPPDChoice_M880 &choice : *choices)
            result.append(choice.text);
        return result;
    };
    const QString automatic = QStringLiteral("Automatic");
    const QString colour = QStringLiteral("Colour");
    QCOMPARE(texts(bundle.get()), (QStringList{automatic, colour, QStringLiteral("Monochrome")}));
    QCOMPARE(texts(nullptr), (QStringList{automatic, colour, QStringLiteral("Black & White")}));

    const auto marked = [&](const platform::Bundle *b) {
        return model->localizedMarkedChoiceForOptionWithBundle(colorType, b);
    };
    QCOMPARE(marked(bundle.get()), QStringLiteral("Monochrome"));
    QCOMPARE(marked(nullptr), QStringLiteral("Black & White"));

    const auto name = [&](const QString &option, const platform::Bundle *b) {
        return model->localizedOptionNameWithBundle(option, b);
    };
    QCOMPARE(name(colorType, bundle.get()), QStringLiteral("Colour mode"));
    QCOMPARE(name(colorType, nullptr), QStringLiteral("Colour Type"));
    QCOMPARE(name(QStringLiteral("Halftone"), bundle.get()), QStringLiteral("Half Tone"));
    QVERIFY(name(QStringLiteral("Missing"), bundle.get()).isNull());
}

void PpdModelTest::leavesOutInvalidText()
{
    const Model model("*ModelName: \"Orb\xff\"\n*Note First: \"cut\xc3\"\n*Note Second: \"whole\"\n" +
                      ppdOption("Paper/Pa\xffper", {"Plain/Plain paper", "Bond/Bo\xffnd"}));
    const QString paper = QStringLiteral("Paper");
    QVERIFY(model->modelname().isNull());
    QVERIFY(model->localizedOptionNameWithBundle(paper, nullptr).isNull());
    QCOMPARE(model->valuesForAttribute(QStringLiteral("Note")), QStringList{QStringLiteral("whole")});
    QCOMPARE(model->choicesForOption(paper)->size(), 2); // the keywords are sound
    QCOMPARE(model->choicesWithValuesForOptionOrder(paper, nullptr)->size(), 1);
    QCOMPARE(model->localizedChoicesForOptionWithBundle(paper, nullptr)->size(), 1);
    model->markChoiceForOption(QStringLiteral("Bond"), paper); // a mark is no less one for its text
    QCOMPARE(model->markedChoiceForOption(paper).value(),
             (QVPPDChoice_M880{QStringLiteral("Bond"), QString()}));
}

void PpdModelTest::readsRepeatedAttributes()
{
    const Model model("*Finisher Left: \"z\"\n*Finisher Right: \"a\"\n*Finisher Top: \"m\"\n");
    QCOMPARE(model->valuesForAttribute(QStringLiteral("Finisher")),
             (QStringList{QStringLiteral("z"), QStringLiteral("a"), QStringLiteral("m")}));
    QCOMPARE(model->valuesForAttribute(QStringLiteral("Missing")), QStringList());
    QCOMPARE(model->valuesForAttribute(longName + longName), QStringList());
}

void PpdModelTest::readsInstallableOptions()
{
    const QByteArray options = ppdOption("Tray2", {"False", "True"}) + ppdOption("Disk", {"None", "Hard"});
    Model model(ppdGroup("InstallableOptions/Extras", options));
    model->markChoiceForOption(QStringLiteral("True"), QStringLiteral("Tray2"));
    QCOMPARE(model->chosenInstallableOptions().value(),
             (QMap<QString, QString>{{QStringLiteral("Tray2"), QStringLiteral("True")},
                                     {QStringLiteral("Disk"), QStringLiteral("None")}}));
    model.ppd.unmarkAll();
    QVERIFY(model->chosenInstallableOptions().value().isEmpty());
    QVERIFY(!Model(ppdGroup("Extras/InstallableOptions", options))->chosenInstallableOptions());
}

void PpdModelTest::turnsChoicesIntoDictionaries()
{
    const QVPPDChoice_M880 choice{mono, QStringLiteral("Black & White")};
    QCOMPARE(choice.toMap(), (QVariantMap{{QStringLiteral("QVPPDChoice"), mono},
                                          {QStringLiteral("QVPPDText"), QStringLiteral("Black & White")}}));
    QCOMPARE(QVPPDChoice_M880::fromMap(choice.toMap()), choice);
}

QTEST_GUILESS_MAIN(PpdModelTest)
#include "ppd_model_test.moc"
