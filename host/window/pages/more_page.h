// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>
#include <QWidget>

class QGridLayout;

namespace host {

class DialogSession;
class OptionForm;

// The options of the PPD that no other page shows, such as finishing, group by group. Builds the rows that
// fit on a screen at once, and the others bit by bit after it has been painted. The session is borrowed and
// outlives the page.
class MorePage : public QWidget
{
    Q_OBJECT
public:
    explicit MorePage(DialogSession *session, QWidget *parent = nullptr);
    void refresh();
    // Null string when everything typed here makes sense.
    QString problem() const;
    // Puts the cursor where the problem is.
    void showProblem();

Q_SIGNALS:
    void chosen(const QString &keyword);
    // Rows have come to those that there were.
    void grown();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // A few rows of one group.
    struct Part
    {
        QString title; // null for rows that go on where the part before ends
        QStringList keywords;
    };
    QList<Part> partsOf(const DialogSession &session) const;
    void build(const Part &part);
    void buildNext();

    DialogSession *m_session;
    QGridLayout *m_grid;
    QList<Part> m_toBuild;
    QList<OptionForm *> m_forms;
    bool m_painted = false;
};

} // namespace host
