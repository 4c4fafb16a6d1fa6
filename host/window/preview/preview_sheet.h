// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPixmap>
#include <QWidget>

namespace host {

// One page, as large as there is room for it, or a few words in its place.
class PreviewSheet : public QWidget
{
    Q_OBJECT
public:
    // The opacity of pages that are not printed.
    static constexpr double paleness = 0.3;

    explicit PreviewSheet(QWidget *parent);

    void showPage(const QImage &page);
    // Plain text; the empty one for a page that is still to come.
    void showText(const QString &text);

    // Whether the page is printed; others are shown pale.
    void setPrinted(bool isPrinted);

    QSize sizeHint() const override { return {190, 260}; }
    QSize minimumSizeHint() const override { return {120, 120}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void scale();

    QImage m_page;
    QPixmap m_scaled;
    QString m_text;
    bool m_isPrinted = true;
};

} // namespace host
