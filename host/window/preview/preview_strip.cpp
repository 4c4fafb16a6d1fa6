// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/preview/preview_strip.h"

#include "host/preview/preview.h"
#include "host/printing/page_ranges.h"
#include "host/window/preview/preview_sheet.h"

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
    void setPrinted(const QString &ranges, bool isOffered)
    {
        if (ranges == m_ranges && isOffered == m_isOffered)
            return;
        const bool isLaidOutAnew = isOffered != m_isOffered;
        m_ranges = ranges;
        m_isOffered = isOffered;
        if (m_count > 0)
            Q_EMIT dataChanged(index(0), index(m_count - 1), {Qt::CheckStateRole, Qt::DecorationRole});
        if (isLaidOutAnew)
            Q_EMIT layoutChanged();
    }
    bool isPrinted(int row) const { return !m_isOffered || containsPage(m_ranges, row + 1); }
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
        if (role == Qt::CheckStateRole && m_isOffered)
            return isPrinted(index.row()) ? Qt::Checked : Qt::Unchecked;
        if (role == Qt::ToolTipRole && m_isOffered)
            return isPrinted(index.row()) ? PreviewStrip::tr("Click the check box to leave this page out")
                                          : PreviewStrip::tr("This page is not printed");
        if (role != Qt::DecorationRole)
            return {};
        return canvas(m_preview->thumbnail(index.row()), isPrinted(index.row()));
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags flags = QAbstractListModel::flags(index);
        return m_isOffered ? flags | Qt::ItemIsUserCheckable : flags;
    }
    bool setData(const QModelIndex &index, const QVariant &, int role) override
    {
        if (role != Qt::CheckStateRole)
            return false;
        Q_EMIT static_cast<PreviewStrip *>(QObject::parent())->toggled(index.row());
        return true;
    }

private:
    // All images have the same size, so that the numbers below are aligned whatever the orientation of the
    // pages.
    QPixmap canvas(const QImage &picture, bool isPrinted) const
    {
        QPixmap pixmap = m_blank;
        if (picture.isNull())
            return pixmap;
        const QImage small = picture.scaled(smallSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&pixmap);
        painter.setOpacity(isPrinted ? 1 : PreviewSheet::paleness);
        painter.drawImage((smallSize.width() - small.width()) / 2, smallSize.height() - small.height(),
                          small);
        return pixmap;
    }

    Preview *m_preview;
    QPixmap m_blank;
    QString m_ranges;
    bool m_isOffered = false;
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
    // If several items have changed, the view itself repaints only some of them.
    connect(preview, &Preview::thumbnailsMade, viewport(), qOverload<>(&QWidget::update));
}

QSize PreviewStrip::sizeHint() const
{
    return {180,
            smallSize.height() + fontMetrics().height() + horizontalScrollBar()->sizeHint().height() + 16};
}

void PreviewStrip::setCount(int pages)
{
    if (pages == m_model->rowCount({})) { // their contents may have changed
        viewport()->update();
        return;
    }
    const int page = qMax(0, current());
    const QSignalBlocker quiet(this);
    m_model->setCount(pages);
    setCurrent(qMin(page, pages - 1));
}

void PreviewStrip::setPrinted(const QString &ranges, bool isOffered)
{
    m_model->setPrinted(ranges, isOffered);
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
