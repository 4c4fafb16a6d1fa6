// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/preview/preview_strip.h"

#include "host/preview/preview.h"

#include <QAbstractListModel>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>

namespace host {

namespace {

constexpr QSize smallSize(60, 72);

} // namespace

class PreviewStripModel : public QAbstractListModel
{
public:
    PreviewStripModel(Preview *preview, QObject *parent) : QAbstractListModel(parent), m_preview(preview)
    {
        m_blank = QPixmap(smallSize);
        m_blank.fill(Qt::transparent);
        connect(preview, &Preview::thumbnailsMade, this, [this](int first, int last) {
            Q_EMIT dataChanged(index(first), index(qMin(last, m_count - 1)), {Qt::DecorationRole});
        });
    }
    void setCount(int count)
    {
        beginResetModel();
        m_count = count;
        endResetModel();
    }
    int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : m_count; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::DisplayRole)
            return QString::number(index.row() + 1);
        if (role != Qt::DecorationRole)
            return {};
        return canvas(m_preview->thumbnail(index.row()));
    }

private:
    // All of one size, so that the numbers below stand in a row whichever way up the pages are.
    QPixmap canvas(const QImage &picture) const
    {
        QPixmap pixmap = m_blank;
        if (picture.isNull())
            return pixmap;
        const QImage small = picture.scaled(smallSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter(&pixmap).drawImage((smallSize.width() - small.width()) / 2,
                                    smallSize.height() - small.height(), small);
        return pixmap;
    }

    Preview *m_preview;
    QPixmap m_blank;
    int m_count = 0;
};

PreviewStrip::PreviewStrip(Preview *preview, QWidget *parent)
    : QuietList(parent), m_model(new PreviewStripModel(preview, this))
{
    setAccessibleName(tr("Pages"));
    setModel(m_model);
    setViewMode(QListView::IconMode);
    setFlow(QListView::LeftToRight);
    setWrapping(false);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setIconSize(smallSize);
    setSpacing(2);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setTabKeyNavigation(false);
    viewport()->setAutoFillBackground(false);
    // Of several items that have changed the view itself paints only some anew.
    connect(preview, &Preview::thumbnailsMade, viewport(), qOverload<>(&QWidget::update));
}

QSize PreviewStrip::sizeHint() const
{
    return {180,
            smallSize.height() + fontMetrics().height() + horizontalScrollBar()->sizeHint().height() + 16};
}

void PreviewStrip::setCount(int pages)
{
    if (pages == m_model->rowCount({})) { // others may be on them
        viewport()->update();
        return;
    }
    const int page = qMax(0, current());
    const QSignalBlocker quiet(this);
    m_model->setCount(pages);
    setCurrent(qMin(page, pages - 1));
}

void PreviewStrip::setCurrent(int page)
{
    setCurrentIndex(m_model->index(page));
}

void PreviewStrip::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QuietList::currentChanged(current, previous);
    if (current.isValid())
        Q_EMIT picked(current.row());
}

} // namespace host
