// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printers/printer_box.h"

#include "host/window/look/contrast.h"
#include "host/window/look/explanations.h"
#include "host/window/printers/printer_list.h"
#include "platform/choice_box.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace host {

namespace {

constexpr int rowsShown = 9;
constexpr int rowPadding = 6; // pixels above and below the two lines
constexpr int sidePadding = 10;

// Draws the name of a printer, and below it, smaller and lighter, its state and location.
class PrinterDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return {200, 2 * option.fontMetrics.lineSpacing() + 2 * rowPadding};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        item.text.clear();
        const QStyle *style = item.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
        const bool selected = item.state & QStyle::State_Selected;
        if (!(index.flags() & Qt::ItemIsEnabled))
            item.palette.setCurrentColorGroup(QPalette::Disabled);
        QColor colour = item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
        const QRect area = item.rect.adjusted(sidePadding, rowPadding, -sidePadding, -rowPadding);
        const auto line = [&](int which, const QString &text) {
            QRect place = area;
            place.setTop(area.top() + which * item.fontMetrics.lineSpacing());
            place.setHeight(item.fontMetrics.lineSpacing());
            painter->setPen(colour);
            painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine,
                              item.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));
        };
        painter->save();
        painter->setFont(item.font);
        line(0, index.data().toString());
        if (!selected)
            colour.setAlphaF(mutedInk(item.palette).alphaF());
        line(1, index.data(PrinterList::DetailRole).toString());
        painter->restore();
    }
};

} // namespace

PrinterBox::PrinterBox(PrinterList *list, QWidget *parent) : QComboBox(parent)
{
    setModel(list);
}

QSize PrinterBox::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return platform::sizeForLength(*this, option, iconSize());
}

void PrinterBox::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    platform::elideCurrentText(*this, option);
}

QWidget *PrinterBox::makePopup()
{
    m_found = new PrinterSearch(this);
    m_found->setSourceModel(model());
    auto *popup = new QFrame(this, Qt::Popup);
    popup->setFrameStyle(QFrame::StyledPanel);
    m_search = new QLineEdit(popup);
    m_search->setPlaceholderText(tr("Search by name or location"));
    m_search->setAccessibleName(tr("Search printers"));
    m_search->setClearButtonEnabled(true);
    popup->setWhatsThis(explanationOf(QStringLiteral("printer")));
    m_view = new QListView(popup);
    m_view->setModel(m_found);
    m_view->setItemDelegate(new PrinterDelegate(m_view));
    m_view->setUniformItemSizes(true);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setAccessibleName(tr("Printers"));
    m_view->setFocusProxy(m_search);
    auto *column = new QVBoxLayout(popup);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(m_search);
    column->addWidget(m_view);
    m_searching = new QLabel(tr("Looking for printers on the network…"), popup);
    m_searching->setEnabled(false);
    m_searching->hide();
    column->addWidget(m_searching);
    if (m_offersToAdd) {
        m_add = new QPushButton(tr("&Add Printer…"), popup);
        m_add->setAutoDefault(false);
        column->addWidget(m_add, 0, Qt::AlignLeading);
        connect(m_add, &QPushButton::clicked, this, [this] {
            hidePopup();
            Q_EMIT addWanted();
        });
    }
    m_search->installEventFilter(this);
    popup->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, &PrinterBox::narrow);
    connect(m_view, &QListView::clicked, this, &PrinterBox::choose);
    return popup;
}

void PrinterBox::showPopup()
{
    if (!m_popup)
        m_popup = makePopup();
    m_search->clear();
    narrow(QString());
    m_view->setCurrentIndex(m_found->mapFromSource(model()->index(currentIndex(), 0)));
    const int rowHeight = 2 * fontMetrics().lineSpacing() + 2 * rowPadding;
    const int rows = std::clamp(count(), 3, rowsShown);
    const QRect available = screen()->availableGeometry();
    const int buttonHeight = m_add ? m_add->sizeHint().height() + m_popup->layout()->spacing() : 0;
    QRect place(
        mapToGlobal(QPoint(0, height())),
        QSize(std::max(width(), 360), m_search->sizeHint().height() + rows * rowHeight + 28 + buttonHeight));
    if (place.bottom() > available.bottom())
        place.moveBottom(std::max(mapToGlobal(QPoint(0, 0)).y(), available.top() + place.height()));
    place.moveRight(std::min(place.right(), available.right()));
    place.moveLeft(std::max(place.left(), available.left()));
    m_popup->setGeometry(place.intersected(available));
    m_popup->show();
    m_search->setFocus(Qt::PopupFocusReason);
    m_view->scrollTo(m_view->currentIndex(), QAbstractItemView::PositionAtCenter);
    Q_EMIT opened();
}

void PrinterBox::setSearching(bool searching)
{
    if (m_searching)
        m_searching->setVisible(searching);
}

void PrinterBox::hidePopup()
{
    if (m_popup)
        m_popup->hide();
    QComboBox::hidePopup();
}

bool PrinterBox::isPopupShown() const
{
    return m_popup && m_popup->isVisible();
}

void PrinterBox::narrow(const QString &text)
{
    m_found->setWords(text);
    if (!m_view->currentIndex().isValid())
        m_view->setCurrentIndex(m_found->index(0, 0));
}

void PrinterBox::choose(const QModelIndex &index)
{
    if (!(index.flags() & Qt::ItemIsEnabled)) // neither has a valid index
        return;
    const QPersistentModelIndex chosen = m_found->mapToSource(index);
    hidePopup(); // rows may move afterwards
    setCurrentIndex(chosen.row());
    Q_EMIT activated(currentIndex());
}

void PrinterBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

bool PrinterBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_popup && event->type() == QEvent::Hide)
        Q_EMIT closed();
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return QComboBox::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        const int step = key->key() == Qt::Key_Up       ? -1
                         : key->key() == Qt::Key_Down   ? 1
                         : key->key() == Qt::Key_PageUp ? -rowsShown
                                                        : rowsShown;
        if (m_found->rowCount() == 0)
            return true;
        const int row = std::clamp(m_view->currentIndex().row() + step, 0, m_found->rowCount() - 1);
        m_view->setCurrentIndex(m_found->index(row, 0));
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_view->currentIndex());
        return true;
    default:
        return false;
    }
}

} // namespace host
