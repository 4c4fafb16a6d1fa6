// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/platform/sample_model.h"

#include "platform/binding.h"
#include "platform/text_field.h"

#include <QCheckBox>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

using platform::Binding;
using platform::Exception;
using platform::TextField;
using platform::ValueTransformer;

namespace {

// Numbers as the text of a control, and back where it reverses.
class TextTransformer : public ValueTransformer
{
public:
    explicit TextTransformer(bool reverses) : m_reverses(reverses) {}
    QMetaType transformedValueClass() const override { return QMetaType(QMetaType::QString); }
    bool allowsReverseTransformation() const override { return m_reverses; }
    QVariant transformedValue(const QVariant &value) const override
    {
        return QStringLiteral("<%1>").arg(value.toString());
    }
    QVariant reverseTransformedValue(const QVariant &value) const override
    {
        return value.toString().remove(QLatin1Char('<')).remove(QLatin1Char('>'));
    }

private:
    bool m_reverses;
};

// A control whose property takes any value.
class AnyControl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged)
public:
    QVariant value() const { return m_value; }
    void setValue(const QVariant &value) { m_value = value; }

Q_SIGNALS:
    void valueChanged();

private:
    QVariant m_value = 1;
};

const QString number = QStringLiteral("number");
const QString value = QStringLiteral("value");
const QString text = QStringLiteral("text");
const QString visible = QStringLiteral("visible");

} // namespace

class BindingTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sliderAndKeyFollowEachOther();
    void clampedValueIsNotEchoed();
    void checkBoxIsClicked();
    void lineEditCommits();
    void refusedValueGoesBack();
    void transformerDecidesTheDirection();
    void nilAndUnfitValues();
    void visibleBeforeShowing_data();
    void visibleBeforeShowing();
    void disabledWithinDisabledParent();
    void pathThroughAnotherObject();
    void replaceAndUnbind();
    void misfitsRaise();
    void lifetimes();
};

void BindingTest::sliderAndKeyFollowEachOther()
{
    SampleModel model;
    model.setNumber(30);
    QSlider first(Qt::Horizontal);
    QSlider second;
    first.setPageStep(10);
    QVERIFY(Binding::bind(&first, value, &model, number)->isTwoWay());
    Binding::bind(&second, value, &model, number);
    QCOMPARE(first.value(), 30);

    const int before = model.sets();
    QTest::keyClick(&first, Qt::Key_PageUp);
    QCOMPARE(model.number(), 40);
    QCOMPARE(second.value(), 40);
    QCOMPARE(model.sets(), before + 1);

    model.setNumber(7);
    QCOMPARE(first.value(), 7);
    QCOMPARE(second.value(), 7);
    QCOMPARE(model.sets(), before + 2);
}

void BindingTest::clampedValueIsNotEchoed()
{
    SampleModel model;
    QSlider slider;
    slider.setRange(0, 5);
    Binding::bind(&slider, value, &model, number);
    model.setNumber(50);
    QCOMPARE(slider.value(), 5);
    QCOMPARE(model.number(), 50);
    QCOMPARE(model.sets(), 1);
}

void BindingTest::checkBoxIsClicked()
{
    SampleModel model;
    QCheckBox box(QStringLiteral("Skip blank pages"));
    box.resize(box.sizeHint());
    Binding::bind(&box, QStringLiteral("checked"), &model, QStringLiteral("flag"));
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    QVERIFY(model.flag());
    model.setFlag(false);
    QVERIFY(!box.isChecked());
}

void BindingTest::lineEditCommits()
{
    SampleModel model;
    TextField field;
    Binding::bind(&field, QStringLiteral("stringValue"), &model, text);
    QTest::keyClicks(&field, QStringLiteral("abc"));
    QCOMPARE(model.text(), QString());
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(model.text(), QStringLiteral("abc"));
    model.setText(QStringLiteral("new"));
    QCOMPARE(field.text(), QStringLiteral("new"));
}

void BindingTest::refusedValueGoesBack()
{
    SampleModel model;
    model.setNumber(9);
    QSlider slider;
    slider.setRange(0, 200);
    Binding::bind(&slider, value, &model, number);
    QTest::ignoreMessage(QtWarningMsg, "RangeException: more than 100");
    QTest::keyClick(&slider, Qt::Key_End);
    QCOMPARE(model.number(), 9);
    QCOMPARE(slider.value(), 9);
}

void BindingTest::transformerDecidesTheDirection()
{
    SampleModel model;
    model.setNumber(3);
    QLineEdit oneWay;
    QLineEdit twoWay;
    QLabel label;
    QVERIFY(
        !Binding::bind(&oneWay, text, &model, number, std::make_shared<TextTransformer>(false))->isTwoWay());
    QVERIFY(
        Binding::bind(&twoWay, text, &model, number, std::make_shared<TextTransformer>(true))->isTwoWay());
    QVERIFY(
        !Binding::bind(&label, text, &model, number, std::make_shared<TextTransformer>(true))->isTwoWay());
    QCOMPARE(oneWay.text() + twoWay.text() + label.text(), QStringLiteral("<3><3><3>"));

    QTest::keyClick(&oneWay, Qt::Key_9);
    QCOMPARE(model.number(), 3);
    twoWay.setCursorPosition(2);
    QTest::keyClick(&twoWay, Qt::Key_9);
    QCOMPARE(model.number(), 39);
    QCOMPARE(label.text(), QStringLiteral("<39>"));
}

void BindingTest::nilAndUnfitValues()
{
    SampleModel model;
    const QString anything = QStringLiteral("anything");
    QLabel label(QStringLiteral("before"));
    QSlider slider;
    AnyControl any;
    slider.setValue(20);
    Binding::bind(&label, text, &model, anything);
    Binding::bind(&slider, value, &model, anything);
    Binding::bind(&any, value, &model, anything);
    QCOMPARE(label.text(), QString());
    QCOMPARE(slider.value(), 0);
    QVERIFY(!any.value().isValid());

    model.setAnything(3);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("anything.*QString.*value")));
    model.setAnything(QStringLiteral("x"));
    QCOMPARE(slider.value(), 3);
    QCOMPARE(any.value(), QVariant(QStringLiteral("x")));
    model.setAnything(QStringLiteral("3"));
    QCOMPARE(any.value().metaType(), QMetaType(QMetaType::QString));
    model.setAnything(3);
    QCOMPARE(any.value().metaType(), QMetaType(QMetaType::Int));
}

void BindingTest::visibleBeforeShowing_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("child of a window") << true;
    QTest::newRow("gets its parent later") << false;
}

void BindingTest::visibleBeforeShowing()
{
    QFETCH(bool, hasParent);
    SampleModel model;
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto label = std::make_unique<QLabel>(hasParent ? &window : nullptr);
    Binding::bind(label.get(), visible, &model, QStringLiteral("flag"));
    model.setFlag(true);
    QVERIFY(!label->isVisible());
    model.setFlag(false);
    column->addWidget(label.get());
    window.show();
    QVERIFY(!label->isVisible());
    model.setFlag(true);
    QVERIFY(label->isVisible());

    QLabel shownLater;
    Binding::bind(&shownLater, visible, &model, QStringLiteral("flag"));
    model.setFlag(false);
    model.setFlag(true);
    QVERIFY(!shownLater.isVisible());
    column->addWidget(&shownLater);
    QVERIFY(QTest::qWaitFor([&] { return shownLater.isVisible(); }));
    shownLater.setParent(nullptr);
}

void BindingTest::disabledWithinDisabledParent()
{
    SampleModel model;
    QWidget parent;
    parent.setEnabled(false);
    QLabel label(&parent);
    Binding::bind(&label, QStringLiteral("enabled"), &model, QStringLiteral("flag"));
    parent.setEnabled(true);
    QVERIFY(!label.isEnabled());
}

void BindingTest::pathThroughAnotherObject()
{
    SampleModel root;
    SampleModel child;
    QSlider slider;
    slider.setValue(7);
    Binding *binding = Binding::bind(&slider, value, &root, QStringLiteral("child.number"));
    QCOMPARE(slider.value(), 0);
    QTest::keyClick(&slider, Qt::Key_End); // nowhere to go, and nothing happens
    child.setNumber(4);
    root.setChild(&child);
    QCOMPARE(slider.value(), 4);
    child.setNumber(5);
    QCOMPARE(slider.value(), 5);
    QCOMPARE(binding->observedKeyPath(), QStringLiteral("child.number"));
    QCOMPARE(binding->observedObject(), &root);
}

void BindingTest::replaceAndUnbind()
{
    SampleModel old;
    SampleModel current;
    QSlider slider;
    Binding::bind(&slider, value, &old, number);
    Binding *binding = Binding::bind(&slider, value, &current, number);
    QCOMPARE(Binding::infoForBinding(&slider, value), binding);
    old.setNumber(3);
    QCOMPARE(slider.value(), 0);
    Binding::unbind(&slider, value);
    Binding::unbind(&slider, value);
    QVERIFY(!Binding::infoForBinding(&slider, value));
    slider.setValue(8);
    QCOMPARE(current.number(), 0);
}

void BindingTest::misfitsRaise()
{
    SampleModel model;
    QSlider slider;
    QVERIFY_EXCEPTION_THROWN(Binding::bind(&slider, QStringLiteral("valu"), &model, number), Exception);
    QVERIFY_EXCEPTION_THROWN(Binding::bind(&slider, QStringLiteral("sizeHint"), &model, number), Exception);
    QVERIFY_EXCEPTION_THROWN(Binding::bind(&slider, value, &model, QStringLiteral("numbr")), Exception);
    QVERIFY_EXCEPTION_THROWN(Binding::bind(&slider, value, &model, QStringLiteral("stranger.number")),
                             Exception);
    QVERIFY(slider.findChildren<Binding *>().isEmpty());
}

void BindingTest::lifetimes()
{
    auto model = std::make_unique<SampleModel>();
    auto slider = std::make_unique<QSlider>();
    QLabel label;
    Binding::bind(slider.get(), value, model.get(), number);
    Binding *binding = Binding::bind(&label, text, model.get(), number);
    slider.reset();
    model->setNumber(2);
    QCOMPARE(label.text(), QStringLiteral("2"));
    model.reset();
    binding->update();
    QCOMPARE(label.text(), QStringLiteral("2"));

    QSlider free;
    QVERIFY(Binding::bind(&free, value, nullptr, number));
    QTest::keyClick(&free, Qt::Key_End);
    QCOMPARE(free.value(), free.maximum());
}

QTEST_MAIN(BindingTest)
#include "binding_test.moc"
