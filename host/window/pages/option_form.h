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

class CustomEditor;
class DialogSession;

// Rows of a page, one for each of some PPD options: a label, a list of the choices, and below it the values
// of a custom choice if it is selected. Conflicting choices are greyed out with the reason. Owned by the page
// whose grid it fills; the session is borrowed and outlives it.
class OptionForm : public QObject
{
    Q_OBJECT
public:
    OptionForm(DialogSession *session, QGridLayout *grid, QObject *parent);

    // Adds a row for each of these options at the end of the grid.
    void add(const QStringList &keywords);
    platform::ChoiceBox *box(const QString &keyword) const;
    // Why an incomplete custom choice cannot be marked; null if there is none.
    QString problem() const;
    // Shows and announces the problem, and moves the focus to it.
    void showProblem();

public Q_SLOTS:
    // Shows the current marks.
    void refresh();

Q_SIGNALS:
    // The user has made a choice, and it is marked. The form does not show its effects until refresh().
    void chosen(const QString &keyword);

private:
    struct Row
    {
        QString keyword;
        platform::ChoiceBox *box;
        CustomEditor *editor = nullptr; // null for an option without a custom choice
        bool awaitsValues = false;      // a custom choice is selected, but its values are incomplete
        bool isTyped = false;           // values of the custom choice are being edited
        QString before = QString();     // the marked choice before that
        QString marked = QString();     // the choice that the last edit has marked
        // The revision of the PPD for which items were greyed out; they need no update while it is unchanged.
        quint32 revision = 0;
        QString current = QString();
        int index = -1;
        bool isBooklet = false;
        bool isDecided = false;
    };
    void addRow(const QString &keyword);
    void addAttribution(QWidget *box, int row);
    void choose(qsizetype index);
    void markCustom(qsizetype index);
    void finishCustom(qsizetype index);
    void refreshFrom(qsizetype first);
    void refreshRow(Row &row, quint32 revision, bool isBooklet);
    void greyOut(const Row &row);

    DialogSession *m_session;
    QGridLayout *m_grid;
    QList<Row> m_rows;
};

} // namespace host
