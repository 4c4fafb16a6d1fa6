// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QElapsedTimer>
#include <QTabBar>

namespace host {

// The list of pages at the side of the dialog: a tab bar with a row for each page, which takes half a
// megabyte less than a list widget. As wide as its longest name if there is space, and as high as all rows,
// so it belongs in a scroll area.
class PageList : public QTabBar
{
    Q_OBJECT
public:
    explicit PageList(QWidget *parent = nullptr);

    void addPage(const QString &title);
    void clear();
    // Sets whether the page has changed settings.
    void setChanged(int row, bool changed);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    QSize tabSizeHint(int row) const override;
    QSize minimumTabSizeHint(int row) const override { return tabSizeHint(row); }
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRect placeOf(int row) const;
    int rowNamed(const QString &typed);
    void paintRow(QPainter *painter, const QStyleOptionTab &option, int row) const;
    void takePalette();

    QString m_typed; // letters in quick succession
    QElapsedTimer m_sinceTyped;
    mutable int m_width = 0; // in pixels, for the longest name in this font; 0 until it is asked for
};

} // namespace host
