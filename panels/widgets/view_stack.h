// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

// The view of a panel that shows one of several views at a time. It is as large as its largest child view at
// its width, and keeps all child views at its own size. The panel decides where they are and which one is
// shown.
class QVViewStack_M880 : public QWidget
{
    Q_OBJECT
public:
    explicit QVViewStack_M880(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // Resizes the child views to the size of this view. Views in place stay in place.
    void fillWithViews();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    QList<QWidget *> views() const;
    int heightFor(const QWidget &view, const QSize &hint) const;
};
