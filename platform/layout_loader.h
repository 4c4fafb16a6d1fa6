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

// A member of a layout's owner that is set to the widget of the same object name.
struct Outlet
{
    QString name;
    // Sets the widget; false if it has the wrong class. Called with null if loading the layout fails later.
    std::function<bool(QWidget *)> fill;
};

// An outlet for a plain pointer member. The layout owns the widget.
template <typename W>
Outlet outlet(const QString &name, W **field)
{
    return {name, [field](QWidget *w) { return (*field = qobject_cast<W *>(w)) != nullptr; }};
}

// An operation of a layout's owner that is called on a click, with the clicked widget as sender.
struct Action
{
    QString name;
    std::function<void(QWidget *sender)> run;
};

// The owner of a layout; it outlives the layout.
class KELMAR_PLATFORM_EXPORT LayoutOwner
{
public:
    virtual ~LayoutOwner();
    virtual std::vector<Outlet> outlets() { return {}; }
    virtual std::vector<Action> actions() { return {}; }
    // The object to whose keys the layout's bindings refer; never null.
    virtual KeyValueObject *keyValueObject() = 0;
};

using TopLevelObjects = std::vector<std::unique_ptr<QObject>>;

// Loads layouts/NAME.ui of the bundle for an owner. Fills its outlets, creates the bindings from the dynamic
// properties `bind_<property>` ("key.path" or "key.path | Transformer"), connects `action` and `delegate`,
// and translates the texts with the bundle's string tables. Every declared outlet must be filled; the form
// itself fills "view" if no widget has that name. On failure nothing is left behind, and Exception
// (layoutName) is raised; it names the file, the widget, and the outlet, key, property, transformer, action
// or delegate that does not match.
KELMAR_PLATFORM_EXPORT TopLevelObjects loadLayout(const Bundle &bundle, const QString &name,
                                                  LayoutOwner *owner);

// A form that uic has compiled into the code of its bundle, and the MD5 of its file in hexadecimal digits.
// The hash detects a file that was edited; it protects nothing, and is computed at each start.
struct CompiledForm
{
    std::unique_ptr<QWidget> (*make)() = nullptr;
    const char *digest = nullptr;
};
template <typename Root, typename Form>
std::unique_ptr<QWidget> makeForm()
{
    auto root = std::make_unique<Root>();
    Form().setupUi(root.get());
    return root;
}
// The same. If the file is the one that was compiled, the compiled form is used instead of parsing the file,
// which takes less than half the time. Without `make`, every file is parsed.
KELMAR_PLATFORM_EXPORT TopLevelObjects loadLayout(const Bundle &bundle, const QString &name,
                                                  LayoutOwner *owner, const CompiledForm &compiled);

// The key path that the user sets with a control of a layout; null for a widget that only displays a value.
KELMAR_PLATFORM_EXPORT QString keyPathSetBy(const QWidget *control);

// Makes widgets of `className` available to layouts. A later registration of the same name replaces an
// earlier one.
using WidgetFactory = std::function<QWidget *(QWidget *parent)>;
KELMAR_PLATFORM_EXPORT void registerLayoutWidget(const QString &className, WidgetFactory factory);
template <typename W>
void registerLayoutWidget(const QString &className)
{
    registerLayoutWidget(className, [](QWidget *parent) -> QWidget * { return new W(parent); });
}

} // namespace platform
