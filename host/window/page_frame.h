// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPointer>
#include <QScrollArea>
#include <QWidget>

namespace host {

// One page of the dialog: a heading and what is below it, which scrolls up and down where the window is too
// low and is never cut at its sides.
class PageFrame : public QWidget
{
    Q_OBJECT
public:
    PageFrame(const QString &title, QWidget *content, QWidget *parent = nullptr);
    ~PageFrame() override;

    // For content that belongs to somebody else: parts from it before that one takes it away.
    void releaseContent();

private:
    QScrollArea *m_scroll;
    QPointer<QWidget> m_content;
};

} // namespace host
