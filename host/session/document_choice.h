// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

namespace host {

// Which of the documents that a dialog was opened for are printed, and which one is looked at. Paths are as
// file_name.h has them; "-" is the standard input. Where another program hands a document over later, there
// are no paths, but the title of the job can be chosen.
class DocumentChoice : public QObject
{
    Q_OBJECT
public:
    explicit DocumentChoice(const QStringList &paths, QObject *parent = nullptr);

    const QStringList &paths() const { return m_paths; }
    QString name(int index) const; // for people
    bool isIncluded(int index) const { return m_included.at(index); }
    void setIncluded(int index, bool included);
    QStringList included() const;             // in order
    int current() const { return m_current; } // -1 without documents
    void setCurrent(int index);
    // Of the job; null where it cannot be chosen.
    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

Q_SIGNALS:
    void includedChanged();
    void currentChanged();

private:
    QStringList m_paths;
    QList<bool> m_included;
    int m_current;
    QString m_title;
};

} // namespace host
