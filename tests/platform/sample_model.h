// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/exception.h"
#include "platform/key_value_object.h"

#include <QPointer>

// A key-value object with a key of each kind, for tests.
class SampleModel : public platform::KeyValueObject
{
    Q_OBJECT
    Q_PROPERTY(int number READ number WRITE setNumber)
    Q_PROPERTY(bool flag READ flag WRITE setFlag)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QVariant anything READ anything WRITE setAnything)
    Q_PROPERTY(QString fixed READ fixed)
    Q_PROPERTY(SampleModel *child READ child WRITE setChild)
    Q_PROPERTY(QObject *stranger READ stranger)
public:
    using KeyValueObject::KeyValueObject;

    int number() const { return m_number; }
    // Numbers above 100 are refused.
    void setNumber(int number)
    {
        ++m_sets;
        if (number > 100)
            throw platform::Exception(platform::Exception::rangeName, QStringLiteral("more than 100"));
        change(QStringLiteral("number"), m_number, number);
    }
    bool flag() const { return m_flag; }
    void setFlag(bool flag) { change(QStringLiteral("flag"), m_flag, flag); }
    QString text() const { return m_text; }
    void setText(const QString &text) { change(QStringLiteral("text"), m_text, text); }
    QVariant anything() const { return m_anything; }
    void setAnything(const QVariant &value) { change(QStringLiteral("anything"), m_anything, value); }
    QString fixed() const { return QStringLiteral("fixed"); }
    SampleModel *child() const { return m_child; }
    void setChild(SampleModel *child)
    {
        change(QStringLiteral("child"), m_child, QPointer<SampleModel>(child));
    }
    QObject *stranger() { return &m_stranger; }

    // How often the number was set, including refused values.
    int sets() const { return m_sets; }

private:
    template <typename T>
    void change(const QString &key, T &field, const T &value)
    {
        const platform::KeyChange announced(this, key);
        field = value;
    }

    int m_number = 0;
    bool m_flag = false;
    QString m_text;
    QVariant m_anything;
    QPointer<SampleModel> m_child;
    QObject m_stranger;
    int m_sets = 0;
};
