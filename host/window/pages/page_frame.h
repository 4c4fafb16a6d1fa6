// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

class QLabel;

namespace host {

// One page of the dialog: a heading, a note where there is one, and what is below them, which scrolls where
// the window is too small for it.
class PageFrame : public QWidget
{
    Q_OBJECT
public:
    PageFrame(const QString &title, const QString &note, QWidget *content, QWidget *parent = nullptr);
    ~PageFrame() override;

    // For content that belongs to another owner: detaches it before its owner deletes it.
    void releaseContent();
    // How wide it must be to show everything without scrolling sideways.
    int wantedWidth() const;
    // How high it is where nothing scrolls.
    int wantedHeight() const;
    void scrollToTop();
    // Says above the content what is awaited, and disables the content until `text` is null.
    void setWaiting(const QString &text);
    // Brings a control of the page into view.
    void reveal(QWidget *control);

Q_SIGNALS:
    // What it shows is laid out anew; it may want to be wider or narrower than before.
    void laidOut();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QScrollArea *m_scroll;
    QPointer<QWidget> m_content;
    QLabel *m_waiting = nullptr; // null unless something is awaited
    bool m_wasEnabled = true;    // the content, before that
};

} // namespace host
