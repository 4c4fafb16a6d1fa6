// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

// The view of a panel that shows one of several views at a time. As large as the largest of its child views
// needs in its width, and each of them is kept as large as it; where they are and which is shown is the
// panel's affair.
class QVViewStack_M880 : public QWidget
{
    Q_OBJECT
public:
    explicit QVViewStack_M880(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // Makes the child views as large as this one; those that are in place stay in place.
    void fillWithViews();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    QList<QWidget *> views() const;
    int heightFor(const QWidget &view, const QSize &hint) const;
};
