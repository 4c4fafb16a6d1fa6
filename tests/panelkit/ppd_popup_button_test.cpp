// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/ppd_popup_button.h"
#include "platform/bundle.h"
#include "tests/panelkit/sample_panel.h"
#include "tests/support/test_bundle.h"

#include <QAbstractItemView>
#include <QTest>
#include <QTextDocumentFragment>
#include <QWheelEvent>

namespace {

const QString colorType = QStringLiteral("ColorType");
const QString balance = QStringLiteral("Balance");
const QString duplex = QStringLiteral("Duplex");
const QString foreign = QStringLiteral("Foreign");
const QStringList keys{colorType, balance, duplex};

const QByteArray ppdBody = ppdOption("ColorType/Colour <u>Type</u>",
                                     {"Auto/Automatic", "Color/Colour", "Mono/Black & <i>White</i>"}) +
                           ppdOption("Balance", {"0", "1", "2"}) + ppdOption("Duplex", {"None", "On"}) +
                           ppdOption("Foreign", {"No", "Yes"}) +
                           ppdConstraint("ColorType Mono", "Balance 1") +
                           ppdConstraint("Balance 2", "ColorType Mono") +
                           ppdConstraint("Balance 1", "Duplex On") + ppdConstraint("Balance 1", "Foreign No");

// A pop-up of a panel that does not serve the option "Foreign".
struct Setting
{
    explicit Setting(const QString &option, const QByteArray &body = ppdBody)
        : dialog(body), panel(dialog, keys)
    {
        popUp.setDataSourceAndOptionName(&panel, option);
    }
    void set(const QString &option, const char *choice)
    {
        panel.setValueForKey(QString::fromLatin1(choice), option);
    }
    QString enabled() const
    {
        QString marks;
        for (int index = 0; index < popUp.count(); ++index)
            marks += popUp.isItemEnabled(index) ? u'+' : u'-';
        return marks;
    }

    SampleDialog dialog;
    SamplePanel panel;
    QVPopUpButton_M880 popUp;
};

} // namespace

class PpdPopUpButtonTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void showsTheChoices();
    void followsAndSetsTheValue();
    void greysOutWhatConflicts();
    void ignoresItsOwnOption();
    void listensToConflictableOptionsOnly();
    void saysWhyAChoiceIsGreyed();
    void isChosenFromByKeyboardAndMouse();
    void turnsWithTheWheelOnlyWithFocus();
    void isRebuilt();
    void outlivesItsPanel();
};

void PpdPopUpButtonTest::showsTheChoices()
{
    Setting s(colorType);
    QCOMPARE(s.popUp.itemText(2), QStringLiteral("Black & <i>White</i>"));
    QCOMPARE(s.popUp.itemData(2).toMap(),
             (QVPPDChoice_M880{QStringLiteral("Mono"), s.popUp.itemText(2)}).toMap());
    QCOMPARE(s.popUp.count(), 3);
}

void PpdPopUpButtonTest::followsAndSetsTheValue()
{
    Setting s(colorType);
    QCOMPARE(s.popUp.selectedIndex(), QVariant(0));
    s.set(colorType, "Mono");
    QCOMPARE(s.popUp.currentIndex(), 2);
    s.popUp.setCurrentIndex(1);
    QCOMPARE(s.panel.valueForKey(colorType), QVariant(QStringLiteral("Color")));
    s.set(colorType, "Sepia"); // in none of the items
    QVERIFY(!s.popUp.selectedIndex().isValid());
    QCOMPARE(s.panel.valueForKey(colorType), QVariant(QStringLiteral("Sepia")));
}

void PpdPopUpButtonTest::greysOutWhatConflicts()
{
    Setting s(balance);
    QCOMPARE(s.enabled(), QStringLiteral("+++"));
    s.set(balance, "1");
    s.set(colorType, "Mono");
    QCOMPARE(s.enabled(), QStringLiteral("+--"));
    QCOMPARE(s.popUp.currentIndex(), 1); // greyed, and still the selection
    s.set(duplex, "On");
    s.set(colorType, "Auto");
    QCOMPARE(s.enabled(), QStringLiteral("+-+"));
    s.set(duplex, "None");
    QCOMPARE(s.enabled(),
             QStringLiteral("+++")); // "Foreign" is none of the panel's options, so it is not asked
}

void PpdPopUpButtonTest::ignoresItsOwnOption()
{
    Setting s(balance, ppdBody + ppdConstraint("Balance 0", "Balance 2"));
    QVERIFY(s.popUp.conflictableOptions().contains(balance));
    s.set(balance, "2");
    QCOMPARE(s.enabled(), QStringLiteral("+++"));
    s.set(duplex, "None");
    QCOMPARE(s.enabled(), QStringLiteral("-++"));
}

void PpdPopUpButtonTest::listensToConflictableOptionsOnly()
{
    const Setting s(balance);
    QCOMPARE(s.popUp.conflictableOptions(), (QSet<QString>{colorType, duplex, foreign}));
    const auto &center = s.dialog.manager->notificationCenter();
    QCOMPARE(center->registrationCount(&s.popUp), 3);
    const Setting free(balance, ppdOption("Balance", {"0", "1"}));
    QCOMPARE(free.dialog.manager->notificationCenter()->registrationCount(&free.popUp), 0);
}

void PpdPopUpButtonTest::saysWhyAChoiceIsGreyed()
{
    TestBundle files;
    files.writeStrings(
        QStringLiteral("de"), QStringLiteral("QVPopUpButton_M880"),
        {{QStringLiteral("Not available while \"%1\" is \"%2\"."), QStringLiteral("%1 steht auf %2.")}});
    Setting s(balance);
    s.set(colorType, "Mono");
    const QString name = QStringLiteral("Colour <u>Type</u>");
    const QString text = QStringLiteral("Black & <i>White</i>");
    const auto toolTip = [&s] {
        const QString tip = s.popUp.itemData(1, Qt::ToolTipRole).toString();
        return QTextDocumentFragment::fromHtml(tip).toPlainText();
    };
    const QString english = QStringLiteral("Not available while \"%1\" is \"%2\".").arg(name, text);
    QVERIFY(Qt::mightBeRichText(s.popUp.itemData(1, Qt::ToolTipRole).toString()));
    QCOMPARE(toolTip(), english);
    QCOMPARE(s.popUp.itemData(1, Qt::AccessibleDescriptionRole).toString(), english);
    QVERIFY(s.popUp.itemData(0, Qt::ToolTipRole).toString().isEmpty());

    s.dialog.manager->setBundle(files.open(QLocale(QLocale::German)));
    s.set(colorType, "Mono");
    QCOMPARE(toolTip(), QStringLiteral("%1 steht auf %2.").arg(name, text));
    s.set(colorType, "Auto");
    QCOMPARE(toolTip(), QString());
}

void PpdPopUpButtonTest::isChosenFromByKeyboardAndMouse()
{
    Setting s(balance);
    s.set(duplex, "On");
    s.popUp.show();
    QTest::keyClick(&s.popUp, Qt::Key_Down); // over the greyed item
    QCOMPARE(s.panel.valueForKey(balance), QVariant(QStringLiteral("2")));

    const auto click = [&s](int row) {
        s.popUp.showPopup();
        QAbstractItemView *list = s.popUp.view();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).topLeft() + QPoint(5, 5));
    };
    click(1); // greyed
    QCOMPARE(s.panel.valueForKey(balance), QVariant(QStringLiteral("2")));
    click(0);
    QCOMPARE(s.panel.valueForKey(balance), QVariant(QStringLiteral("0")));
}

void PpdPopUpButtonTest::turnsWithTheWheelOnlyWithFocus()
{
    Setting s(colorType);
    s.popUp.show();
    QVERIFY(QTest::qWaitForWindowActive(&s.popUp));
    const auto turn = [&s] {
        QWheelEvent event(QPointF(5, 5), s.popUp.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&s.popUp, &event);
        return event.isAccepted();
    };
    s.popUp.clearFocus();
    QVERIFY(!turn());
    QCOMPARE(s.popUp.currentIndex(), 0);
    s.popUp.setFocus();
    QVERIFY(turn());
    QCOMPARE(s.popUp.currentIndex(), 1);
}

void PpdPopUpButtonTest::isRebuilt()
{
    Setting s(balance);
    s.set(colorType, "Mono");
    s.popUp.setDataSourceAndOptionName(&s.panel, duplex);
    QCOMPARE(s.popUp.count(), 2);
    QCOMPARE(s.popUp.conflictableOptions(), QSet<QString>{balance});
    QCOMPARE(s.dialog.manager->notificationCenter()->registrationCount(&s.popUp), 4);
    s.set(balance, "1");
    QCOMPARE(s.enabled(), QStringLiteral("+-"));
    s.popUp.setCurrentIndex(1);
    QCOMPARE(s.panel.valueForKey(duplex), QVariant(QStringLiteral("On")));
    QCOMPARE(s.panel.valueForKey(balance), QVariant(QStringLiteral("1")));
    s.popUp.setDataSourceAndOptionName(nullptr, duplex);
    QCOMPARE(s.popUp.count(), 0);
    QCOMPARE(s.panel.valueForKey(duplex), QVariant(QStringLiteral("On")));
}

void PpdPopUpButtonTest::outlivesItsPanel()
{
    const SampleDialog dialog(ppdBody);
    auto panel = std::make_unique<SamplePanel>(dialog, keys);
    QVPopUpButton_M880 popUp;
    popUp.setDataSourceAndOptionName(panel.get(), balance);
    panel.reset();
    dialog.manager->notificationCenter()->postNotification(colorType, nullptr);
    popUp.setCurrentIndex(1);
    QCOMPARE(popUp.currentIndex(), 1);
}

QTEST_MAIN(PpdPopUpButtonTest)
#include "ppd_popup_button_test.moc"
