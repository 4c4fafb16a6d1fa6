// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

#include <memory>

namespace host {

class DocumentList;

// The documents of a dialog: which of them are printed, and which one is shown. Paths are encoded as in
// file_name.h; "-" is the standard input. If another program sends the document later, there are no paths,
// but the title of the job can be chosen.
class DocumentChoice : public QObject
{
    Q_OBJECT
public:
    explicit DocumentChoice(const QStringList &paths, QObject *parent = nullptr);

    const QStringList &paths() const { return m_paths; }
    // Opens the documents for all jobs and files that the dialog makes of them, since data from a pipe can be
    // read only once.
    const std::shared_ptr<DocumentList> &opened() const { return m_opened; }
    QString name(int index) const; // for display
    bool isIncluded(int index) const { return m_included.at(index); }
    void setIncluded(int index, bool included);
    QStringList included() const;             // in order
    int current() const { return m_current; } // -1 without documents
    void setCurrent(int index);
    // The title of the job; null if it cannot be chosen.
    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

Q_SIGNALS:
    void includedChanged();
    void currentChanged();

private:
    QStringList m_paths;
    std::shared_ptr<DocumentList> m_opened;
    QList<bool> m_included;
    int m_current;
    QString m_title;
};

} // namespace host
