// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/change_marks.h"

#include "host/session/dialog_session.h"
#include "host/session/session_changes.h"
#include "host/session/session_history.h"
#include "host/window/look/change_mark.h"
#include "host/window/look/foreign_text.h"
#include "platform/binding.h"
#include "platform/layout_loader.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QStyle>

#include <algorithm>
#include <memory>
#include <utility>

namespace host {

namespace {

constexpr int gap = 1; // pixels between a control and its mark, which has a margin

bool isControl(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QAbstractSlider *>(widget);
}

// Calls functions on a change by the user, and on a change caused by another setting.
void onChange(QWidget *widget, SessionHistory *history)
{
    const auto note = [history] { history->noteLater(); };
    if (auto *box = qobject_cast<QComboBox *>(widget))
        QObject::connect(box, &QComboBox::currentIndexChanged, history, note);
    else if (auto *button = qobject_cast<QAbstractButton *>(widget))
        QObject::connect(button, &QAbstractButton::clicked, history, note);
    else if (auto *spin = qobject_cast<QSpinBox *>(widget))
        QObject::connect(spin, &QSpinBox::valueChanged, history, note);
    else if (auto *number = qobject_cast<QDoubleSpinBox *>(widget))
        QObject::connect(number, &QDoubleSpinBox::valueChanged, history, note);
    else if (auto *line = qobject_cast<QLineEdit *>(widget)) {
        QObject::connect(line, &QLineEdit::textChanged, history, note);
        QObject::connect(line, &QLineEdit::editingFinished, history, note);
    } else if (auto *slider = qobject_cast<QAbstractSlider *>(widget))
        QObject::connect(slider, &QAbstractSlider::valueChanged, history, note);
}

} // namespace

ChangeMarks::ChangeMarks(QWidget *page, int panel, DialogSession *session, SessionHistory *history)
    : QObject(page->parentWidget()), m_page(page), m_panel(panel), m_session(session), m_history(history)
{
    refresh();
}

// The panel's controls outlive this object.
ChangeMarks::~ChangeMarks()
{
    for (const Control &control : std::as_const(m_controls))
        delete control.mark;
}

void ChangeMarks::findControls()
{
    for (QWidget *widget : m_page->findChildren<QWidget *>()) {
        if (m_watched.contains(widget) || !isControl(widget))
            continue;
        const QString name = widget->objectName();
        add(widget, m_panel >= 0 ? keysSetBy(widget) : name.isEmpty() ? QStringList() : QStringList(name));
    }
}

// The keys that a control sets: those of its bindings, and the key path that it declares without a binding,
// as a slider does that sets the key of its panel itself.
QStringList ChangeMarks::keysSetBy(const QWidget *control) const
{
    QStringList keys;
    const QString declared = platform::keyPathSetBy(control);
    bool isBound = false;
    for (const auto *binding :
         control->findChildren<platform::Binding *>(QString(), Qt::FindDirectChildrenOnly)) {
        isBound = isBound || binding->observedKeyPath() == declared;
        if (binding->isTwoWay())
            keys += keysOfControl(*m_session, m_panel, binding->observedKeyPath());
    }
    return isBound || declared.isEmpty() ? keys : keys + keysOfControl(*m_session, m_panel, declared);
}

void ChangeMarks::add(QWidget *widget, const QStringList &keys)
{
    m_watched.insert(widget);
    connect(widget, &QObject::destroyed, this, [this](QObject *gone) { m_watched.remove(gone); });
    onChange(widget, m_history);
    if (keys.isEmpty())
        return;
    m_controls.append({widget, keys, {}, {}, {}});
    for (QWidget *around = widget; around != m_page->parentWidget(); around = around->parentWidget())
        watch(around);
    for (QLineEdit *inner : widget->findChildren<QLineEdit *>())
        watch(inner); // the field of a spin box shows the context menu
}

void ChangeMarks::watch(QWidget *widget)
{
    widget->removeEventFilter(this);
    widget->installEventFilter(this);
}

QWidget *ChangeMarks::controlOf(const QString &key)
{
    return controlsOf(key).value(0);
}

QList<QWidget *> ChangeMarks::controlsOf(const QString &key)
{
    findControls();
    QList<QWidget *> controls;
    for (const Control &control : std::as_const(m_controls)) {
        if (control.widget && control.keys.contains(key))
            controls.append(control.widget);
    }
    return controls;
}

void ChangeMarks::refresh()
{
    findControls();
    const QStringList changed = m_history->base().state.differencesTo(m_history->now());
    const QList<SettingChange> inWords =
        changed.isEmpty() ? QList<SettingChange>()
                          : changesBetween(*m_session, m_history->base().state, m_history->now());
    for (Control &control : m_controls) {
        const bool isChanged = std::any_of(control.keys.begin(), control.keys.end(),
                                           [&](const QString &key) { return changed.contains(key); });
        if (control.widget)
            show(&control, isChanged, inWords);
    }
    placeAll();
}

void ChangeMarks::show(Control *control, bool isChanged, const QList<SettingChange> &changes)
{
    if (!isChanged) {
        if (control->mark) {
            control->mark->hide();
            control->mark->deleteLater(); // the mark may be the sender
            control->mark = nullptr;
            describe(control, QString());
        }
        return;
    }
    const auto change = std::find_if(changes.begin(), changes.end(),
                                     [&](const SettingChange &c) { return control->keys.contains(c.key); });
    const QString earlier = change == changes.end() ? QString() : oneLine(change->before);
    if (!control->mark) {
        control->mark = new ChangeMark(m_page->parentWidget());
        connect(control->mark, &QAbstractButton::clicked, this, [this, copy = *control] { takeBack(copy); });
    }
    control->mark->tell(earlier);
    describe(control, control->mark->accessibleName());
}

// Puts the change before the control's own description, which may have been set again since the last call.
void ChangeMarks::describe(Control *control, const QString &change)
{
    const QString now = control->widget->accessibleDescription();
    if (now != control->description)
        control->ownDescription = now;
    QStringList parts{change, control->ownDescription};
    parts.removeAll(QString());
    control->description = parts.join(QStringLiteral(". "));
    control->widget->setAccessibleDescription(control->description);
}

// A widget on a page that a mark must not cover.
struct ChangeMarks::Obstacle
{
    const QWidget *widget;
    QRect place; // on the page
};

// Adds the obstacles inside a widget that reach into a strip of the page. `origin` is the place of the
// widget.
void ChangeMarks::addObstacles(const QWidget *outer, const QPoint &origin, const QRect &strip,
                               QList<Obstacle> *obstacles)
{
    for (const QObject *child : outer->children()) {
        const auto *widget = child->isWidgetType() ? static_cast<const QWidget *>(child) : nullptr;
        if (!widget || widget->isHidden() || widget->isWindow())
            continue;
        const QRect place = widget->geometry().translated(origin);
        if (!place.intersects(strip) || qobject_cast<const ChangeMark *>(widget))
            continue;
        const bool holdsOthers = std::any_of(widget->children().begin(), widget->children().end(),
                                             [](const QObject *inner) { return inner->isWidgetType(); });
        if (isControl(widget) || !holdsOthers)
            obstacles->append({widget, place});
        addObstacles(widget, place.topLeft(), strip, obstacles);
    }
}

bool ChangeMarks::isFree(const QRect &place, const QWidget *control, const QWidget *sheet,
                         const QList<Obstacle> &obstacles)
{
    return sheet->rect().contains(place) &&
           std::none_of(obstacles.begin(), obstacles.end(), [&](const Obstacle &other) {
               return other.place.intersects(place) && other.widget != control &&
                      !control->isAncestorOf(other.widget);
           });
}

void ChangeMarks::placeAll()
{
    m_isPlaceQueued = false;
    for (const Control &control : std::as_const(m_controls)) {
        if (control.mark && control.widget)
            place(control);
    }
}

// Places a mark after its control, or before it if another widget is there. If neither place is free, moves
// it along the line to the next free one.
void ChangeMarks::place(const Control &control)
{
    QWidget *sheet = m_page->parentWidget();
    ChangeMark *mark = control.mark;
    QWidget *widget = control.widget;
    mark->setVisible(widget->isVisibleTo(sheet));
    if (mark->isHidden())
        return;
    QRect around(widget->mapTo(sheet, QPoint()), widget->size());
    if (qobject_cast<const QCheckBox *>(widget)) { // the text may be shorter than the line
        const QRect words(around.topLeft(),
                          QSize(qMin(around.width(), widget->sizeHint().width()), around.height()));
        around = QStyle::visualRect(sheet->layoutDirection(), around, words);
    }
    const int top = around.center().y() - mark->height() / 2;
    const QPoint after(around.right() + gap, top), before(around.left() - gap - mark->width(), top);
    QList<Obstacle> obstacles;
    addObstacles(sheet, {}, QRect(0, top, sheet->width(), mark->height()), &obstacles);
    const bool isRightToLeft = sheet->isRightToLeft();
    const QPoint first = isRightToLeft ? before : after, second = isRightToLeft ? after : before;
    const auto fits = [&](const QPoint &at) { return isFree({at, mark->size()}, widget, sheet, obstacles); };
    const bool inColumn =
        qobject_cast<const QAbstractSlider *>(widget); // all of them at the end of their lines
    QPoint at = fits(first) || !fits(second) || inColumn ? first : second;
    const int step = isRightToLeft ? -2 : 2;
    while (!fits(at) && at.x() >= 0 && at.x() <= sheet->width())
        at.rx() += step;
    mark->move(fits(at) ? at : second);
    mark->raise();
}

void ChangeMarks::takeBack(const Control &control)
{
    m_history->note();
    m_history->endGesture();
    putBack(m_session, m_history->base().state, control.keys);
    m_history->note();
    m_history->endGesture();
    if (control.widget)
        control.widget->setFocus(Qt::OtherFocusReason);
}

bool ChangeMarks::showMenu(const Control &control, QWidget *widget, const QPoint &place)
{
    auto *line = qobject_cast<QLineEdit *>(widget);
    std::unique_ptr<QMenu> menu(line ? line->createStandardContextMenu() : new QMenu(widget));
    auto *back = new QAction(control.mark->backText(), menu.get());
    menu->insertAction(menu->actions().value(0), back);
    connect(
        back, &QAction::triggered, this, [this, copy = control] { takeBack(copy); }, Qt::QueuedConnection);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu.release()->popup(place);
    return true;
}

bool ChangeMarks::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        if (!std::exchange(m_isPlaceQueued, true))
            QMetaObject::invokeMethod(this, &ChangeMarks::placeAll, Qt::QueuedConnection);
        return false;
    case QEvent::ContextMenu:
        for (const Control &control : std::as_const(m_controls)) {
            auto *widget = qobject_cast<QWidget *>(watched);
            if (widget && control.mark && control.widget &&
                (control.widget == widget || control.widget->isAncestorOf(widget)))
                return showMenu(control, widget, static_cast<QContextMenuEvent *>(event)->globalPos());
        }
        return false;
    default:
        return false;
    }
}

} // namespace host
