// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/platform/sample_model.h"

#include "platform/key_path_observer.h"
#include "platform/notification_center.h"

#include <QSignalSpy>
#include <QTest>

using platform::Exception;
using platform::KeyPathObserver;
using platform::KeyValueObject;

namespace {

// A class of its own, so that dependent keys of one test reach no other.
class DependentModel : public SampleModel
{
    Q_OBJECT
};

class FurtherModel : public DependentModel
{
    Q_OBJECT
};

class RecordingObserver : public KeyValueObject
{
    Q_OBJECT
public:
    void observeValueForKeyPathOfObjectChangeContext(const QString &keyPath, KeyValueObject *,
                                                     const QVariantMap &change, QObject *context) override
    {
        m_seen.append(
            QStringLiteral("%1=%2").arg(keyPath, change[platform::NSKeyValueChangeNewKey].toString()));
        m_context = context;
        if (m_leave)
            m_leave->removeObserverForKeyPath(this, keyPath);
    }
    QStringList m_seen;
    QObject *m_context = nullptr;
    KeyValueObject *m_leave = nullptr; // stops observing this object at the first notice
};

QStringList keysOf(const QSignalSpy &spy)
{
    QStringList keys;
    for (const QList<QVariant> &arguments : spy)
        keys.append(arguments.first().toString());
    return keys;
}

} // namespace

class KeyValueObjectTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void setsAndReads_data();
    void setsAndReads();
    void refuses_data();
    void refuses();
    void keyPaths();
    void dependentKeysAreAnnounced();
    void observers();
    void keyPathObserverFollowsReplacedAndDestroyedObjects();
};

void KeyValueObjectTest::setsAndReads_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("read");
    QTest::newRow("same type") << "number" << QVariant(7) << QVariant(7);
    QTest::newRow("text to number") << "number" << QVariant(QStringLiteral("7")) << QVariant(7);
    QTest::newRow("number to text") << "text" << QVariant(7) << QVariant(QStringLiteral("7"));
    QTest::newRow("nil text") << "text" << QVariant() << QVariant(QString());
    QTest::newRow("anything") << "anything" << QVariant(QStringList{QStringLiteral("a")})
                              << QVariant(QStringList{QStringLiteral("a")});
    QTest::newRow("nil anything") << "anything" << QVariant() << QVariant();
    QTest::newRow("nil object") << "child" << QVariant() << QVariant::fromValue<SampleModel *>(nullptr);
}

void KeyValueObjectTest::setsAndReads()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QVariant, read);
    SampleModel model;
    model.setText(QStringLiteral("before"));
    model.setAnything(1);
    model.setValueForKey(value, key);
    const QVariant result = model.valueForKey(key);
    QCOMPARE(result, read);
    QCOMPARE(result.metaType(), read.metaType());
}

void KeyValueObjectTest::refuses_data()
{
    QTest::addColumn<QString>("keyPath");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("undefined") << "numbr" << QVariant(1) << Exception::undefinedKeyName;
    QTest::newRow("empty") << "" << QVariant(1) << Exception::undefinedKeyName;
    QTest::newRow("read-only") << "fixed" << QVariant(QStringLiteral("x")) << Exception::undefinedKeyName;
    QTest::newRow("no number") << "number" << QVariant(QStringLiteral("x")) << Exception::invalidArgumentName;
    QTest::newRow("nil number") << "number" << QVariant() << Exception::invalidArgumentName;
    QTest::newRow("nil flag") << "flag" << QVariant() << Exception::invalidArgumentName;
    QTest::newRow("no object") << "child" << QVariant(1) << Exception::invalidArgumentName;
    QTest::newRow("path through a number") << "number.text" << QVariant(1) << Exception::undefinedKeyName;
    QTest::newRow("path through a stranger") << "stranger.text" << QVariant(1) << Exception::undefinedKeyName;
    QTest::newRow("undefined at the end") << "child.numbr" << QVariant(1) << Exception::undefinedKeyName;
}

void KeyValueObjectTest::refuses()
{
    QFETCH(QString, keyPath);
    QFETCH(QVariant, value);
    QFETCH(QString, name);
    SampleModel child;
    SampleModel model;
    model.setChild(&child);
    QSignalSpy changes(&model, &KeyValueObject::valueDidChange);
    try {
        model.setValueForKeyPath(value, keyPath);
    } catch (const Exception &exception) {
        QCOMPARE(exception.name(), name);
        const QString key = keyPath.section(QLatin1Char('.'), -1);
        const QString holder = keyPath.section(QLatin1Char('.'), 0, 0);
        QVERIFY2(exception.reason().contains(key) || exception.reason().contains(holder), exception.what());
        QCOMPARE(changes.count(), 0);
        return;
    }
    QFAIL("no exception");
}

void KeyValueObjectTest::keyPaths()
{
    SampleModel leaf;
    SampleModel middle;
    SampleModel root;
    middle.setChild(&leaf);
    root.setChild(&middle);
    root.setValueForKeyPath(5, QStringLiteral("child.child.number"));
    QCOMPARE(leaf.number(), 5);
    QCOMPARE(root.valueForKeyPath(QStringLiteral("child.child.number")), QVariant(5));

    middle.setChild(nullptr);
    root.setValueForKeyPath(6, QStringLiteral("child.child.number"));
    QCOMPARE(leaf.number(), 5);
    QVERIFY(!root.valueForKeyPath(QStringLiteral("child.child.number")).isValid());
}

void KeyValueObjectTest::dependentKeysAreAnnounced()
{
    const auto depend = [](const QMetaObject &cls, const QString &key, const QString &dependent) {
        KeyValueObject::setKeysTriggerChangeNotificationsForDependentKey(&cls, {key}, dependent);
    };
    depend(DependentModel::staticMetaObject, QStringLiteral("number"), QStringLiteral("flag"));
    depend(DependentModel::staticMetaObject, QStringLiteral("number"), QStringLiteral("flag"));
    depend(FurtherModel::staticMetaObject, QStringLiteral("flag"), QStringLiteral("text"));
    depend(FurtherModel::staticMetaObject, QStringLiteral("text"), QStringLiteral("number")); // a circle

    const auto announced = [](SampleModel &&model) {
        QSignalSpy before(&model, &KeyValueObject::valueWillChange);
        QSignalSpy after(&model, &KeyValueObject::valueDidChange);
        model.setNumber(1);
        return keysOf(before) == keysOf(after) ? keysOf(after).join(QLatin1Char(' '))
                                               : QStringLiteral("differ");
    };
    QCOMPARE(announced(SampleModel()), QStringLiteral("number"));
    QCOMPARE(announced(DependentModel()), QStringLiteral("number flag"));
    QCOMPARE(announced(FurtherModel()), QStringLiteral("number flag text"));
}

void KeyValueObjectTest::observers()
{
    SampleModel model;
    RecordingObserver observer;
    const QString number = QStringLiteral("number");
    QObject context;
    model.addObserverForKeyPath(&observer, number, &context);
    {
        RecordingObserver shortLived;
        model.addObserverForKeyPath(&shortLived, number, nullptr);
        model.setNumber(1);
        QCOMPARE(shortLived.m_seen, QStringList{QStringLiteral("number=1")});
    }
    model.setNumber(2);
    model.setFlag(true);
    QCOMPARE(observer.m_seen, (QStringList{QStringLiteral("number=1"), QStringLiteral("number=2")}));
    QCOMPARE(observer.m_context, &context);

    model.removeObserverForKeyPath(&observer, QStringLiteral("flag"));
    observer.m_leave = &model;
    model.setNumber(3);
    model.setNumber(4);
    QCOMPARE(observer.m_seen.size(), 3);

    auto observed = std::make_unique<SampleModel>();
    observed->addObserverForKeyPath(&observer, number, nullptr);
    observed.reset();
    model.removeObserverForKeyPath(&observer, number);
}

void KeyValueObjectTest::keyPathObserverFollowsReplacedAndDestroyedObjects()
{
    SampleModel root;
    auto first = std::make_unique<SampleModel>();
    SampleModel second;
    KeyPathObserver observer(&root, QStringLiteral("child.number"));
    QSignalSpy changed(&observer, &KeyPathObserver::changed);
    const auto noticed = [&changed] {
        const qsizetype count = changed.count();
        changed.clear();
        return count;
    };

    root.setChild(first.get());
    QCOMPARE(noticed(), 1);
    first->setNumber(1);
    QCOMPARE(noticed(), 1);
    first->setFlag(true);
    root.setNumber(2); // the same key on another level
    QCOMPARE(noticed(), 0);

    root.setChild(&second);
    QCOMPARE(noticed(), 1);
    first->setNumber(2);
    QCOMPARE(noticed(), 0);
    second.setNumber(2);
    QCOMPARE(noticed(), 1);

    root.setChild(first.get());
    noticed();
    first.reset();
    QCOMPARE(noticed(), 1);
    QVERIFY(!root.valueForKeyPath(QStringLiteral("child.number")).isValid());
}

QTEST_GUILESS_MAIN(KeyValueObjectTest)
#include "key_value_object_test.moc"
