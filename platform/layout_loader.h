// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QObject>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace platform {

class Bundle;
class KeyValueObject;

// A place of a layout's owner that a widget of the same object name fills.
struct Outlet
{
    QString name;
    // Takes the widget; false when it is of the wrong class. Takes null when the layout is given up after
    // all.
    std::function<bool(QWidget *)> fill;
};

// An outlet that is a plain pointer field. The widget belongs to the layout.
template <typename W>
Outlet outlet(const QString &name, W **field)
{
    return {name, [field](QWidget *w) { return (*field = qobject_cast<W *>(w)) != nullptr; }};
}

// An operation of a layout's owner that a click calls, with the clicked widget as sender.
struct Action
{
    QString name;
    std::function<void(QWidget *sender)> run;
};

// What a layout is loaded for. The owner outlives the layout.
class KELMAR_PLATFORM_EXPORT LayoutOwner
{
public:
    virtual ~LayoutOwner();
    virtual std::vector<Outlet> outlets() { return {}; }
    virtual std::vector<Action> actions() { return {}; }
    // The object whose keys the layout's bindings name; never null.
    virtual KeyValueObject *keyValueObject() = 0;
};

using TopLevelObjects = std::vector<std::unique_ptr<QObject>>;

// Loads layouts/NAME.ui of the bundle for an owner: fills its outlets, makes the bindings of the dynamic
// properties `bind_<property>` ("key.path" or "key.path | Transformer"), connects `action` and `delegate`,
// and translates its texts with the bundle's strings. Every declared outlet must be filled; the form itself
// fills "view" where no widget is called so. Raises Exception (layoutName) naming the file, the widget and
// the outlet, key, property, transformer, action or delegate that does not fit; nothing is left behind then.
KELMAR_PLATFORM_EXPORT TopLevelObjects loadLayout(const Bundle &bundle, const QString &name,
                                                  LayoutOwner *owner);

// The key path that the user sets with a control of a layout; null for a widget that only shows something.
KELMAR_PLATFORM_EXPORT QString keyPathSetBy(const QWidget *control);

// Makes widgets of `className` available to layouts. The last registration of a name counts.
using WidgetFactory = std::function<QWidget *(QWidget *parent)>;
KELMAR_PLATFORM_EXPORT void registerLayoutWidget(const QString &className, WidgetFactory factory);
template <typename W>
void registerLayoutWidget(const QString &className)
{
    registerLayoutWidget(className, [](QWidget *parent) -> QWidget * { return new W(parent); });
}

} // namespace platform
