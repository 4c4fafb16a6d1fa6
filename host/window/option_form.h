// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class QGridLayout;

namespace platform {
class ChoiceBox;
}

namespace host {

class DialogSession;

// Rows of a page, one for each of some PPD options: a label and a list of the choices. Choices that something
// else stands in the way of are greyed and say why. Belongs to the page whose grid it fills; the session is
// borrowed and outlives it.
class OptionForm : public QObject
{
    Q_OBJECT
public:
    OptionForm(DialogSession *session, const QStringList &keywords, QGridLayout *grid, QObject *parent);

    platform::ChoiceBox *box(const QString &keyword) const;

public Q_SLOTS:
    // Shows what is marked now.
    void refresh();

Q_SIGNALS:
    // The user has chosen, and the choice is marked.
    void chosen(const QString &keyword);

private:
    struct Row
    {
        QString keyword;
        platform::ChoiceBox *box;
    };
    void addRow(const QString &keyword, QGridLayout *grid);
    void refreshRow(const Row &row);

    DialogSession *m_session;
    QList<Row> m_rows;
};

} // namespace host
