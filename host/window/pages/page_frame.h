// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

class QGridLayout;
class QLabel;

namespace host {

// The grid of a page's content: labels in the first column, fields in the second. Owned by the page.
QGridLayout *contentGrid(QWidget *page);
// Adds a row with a field, which gets the name and the explanation of its setting. The grid's page owns it.
// `label` ends with a colon; the field's accessible name is the label without it.
void addField(QGridLayout *grid, const QString &setting, const QString &label, QWidget *field);

// One page of the dialog: a heading, an optional note, and the content, which scrolls if the window is too
// small.
class PageFrame : public QWidget
{
    Q_OBJECT
public:
    PageFrame(const QString &title, const QString &note, QWidget *content, QWidget *parent = nullptr);
    ~PageFrame() override;

    // For content with another owner: detaches it before the owner deletes it.
    void releaseContent();
    // The width in which everything is shown without horizontal scrolling.
    int wantedWidth() const;
    // The height without scrolling.
    int wantedHeight() const;
    void scrollToTop();
    // Shows what is awaited above the content, and disables the content until `text` is null.
    void setWaiting(const QString &text);
    // Scrolls to a control of the page.
    void reveal(QWidget *control);

Q_SIGNALS:
    // The content has been laid out again; its preferred width may have changed.
    void laidOut();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QScrollArea *m_scroll;
    QPointer<QWidget> m_content;
    QLabel *m_waiting = nullptr; // null unless something is awaited
    bool m_wasEnabled = true;    // whether the content was enabled before
};

} // namespace host
