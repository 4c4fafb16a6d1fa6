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
    explicit PreviewSheet(QWidget *parent);

    void showPage(const QImage &page);
    // Plain text; the empty one for a page that is still to come.
    void showText(const QString &text);

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
};

} // namespace host
