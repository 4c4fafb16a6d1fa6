// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QCheckBox;
class QGridLayout;
class QWidget;

namespace platform {
class ChoiceBox;
}

namespace host {

class DialogSession;

// Rows of a page for the page layout: pages per side with their order and border, orientation, size, odd or
// even pages, reverse order. Owned by the page whose grid it fills. Writes to the session immediately; the
// session is borrowed and outlives it.
class LayoutForm : public QObject
{
    Q_OBJECT
public:
    LayoutForm(DialogSession *session, QGridLayout *grid, QObject *parent);

    // The width of the labels in the font of a page, in pixels, so that a page can reserve it before the form
    // is created.
    static int labelWidth(const QWidget *page);
    // The height in a page's grid with controls of this height, in pixels, so that a page can reserve it.
    static int heightIn(const QGridLayout &grid, int controlHeight);
    // Shows the current settings of the session.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    struct Row
    {
        QString name; // name of the job option
        platform::ChoiceBox *box;
    };
    void addRow(const QString &name, const QString &label, QGridLayout *grid);
    void addReverse(QGridLayout *grid);
    void choose(const Row &row);

    DialogSession *m_session;
    QList<Row> m_rows;
    QCheckBox *m_reverse = nullptr;
};

} // namespace host
