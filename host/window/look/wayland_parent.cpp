// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/wayland_parent.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#ifdef KELMAR_WAYLAND_PARENT
#include <xdg-foreign-unstable-v1-client-protocol.h>
#include <xdg-foreign-unstable-v2-client-protocol.h>

#include <qpa/qplatformnativeinterface.h>

#include <cstring>
#endif

namespace host {

#ifdef KELMAR_WAYLAND_PARENT

namespace {

template <auto destroy>
struct Destroyer
{
    template <typename T>
    void operator()(T *object) const
    {
        destroy(object);
    }
};

// The versions of the protocol that the compositor offers: the second, or the first.
struct Importers
{
    std::unique_ptr<zxdg_importer_v2, Destroyer<zxdg_importer_v2_destroy>> second;
    std::unique_ptr<zxdg_importer_v1, Destroyer<zxdg_importer_v1_destroy>> first;
};

void bindImporter(void *data, wl_registry *registry, uint32_t name, const char *interface, uint32_t)
{
    auto *importers = static_cast<Importers *>(data);
    if (std::strcmp(interface, zxdg_importer_v2_interface.name) == 0)
        importers->second.reset(static_cast<zxdg_importer_v2 *>(
            wl_registry_bind(registry, name, &zxdg_importer_v2_interface, 1)));
    else if (std::strcmp(interface, zxdg_importer_v1_interface.name) == 0)
        importers->first.reset(static_cast<zxdg_importer_v1 *>(
            wl_registry_bind(registry, name, &zxdg_importer_v1_interface, 1)));
}

void ignoreRemoval(void *, wl_registry *, uint32_t) {}

constexpr wl_registry_listener registryListener{bindImporter, ignoreRemoval};

} // namespace

// Uses a separate event queue on Qt's connection. It is not read after the first round trip, since it does
// not matter here whether the other window has been closed.
class WaylandParent::Import
{
public:
    Import(wl_display *display, wl_surface *surface, const char *handle)
        : m_queue(wl_display_create_queue(display))
    {
        const std::unique_ptr<void, Destroyer<wl_proxy_wrapper_destroy>> wrapper(
            wl_proxy_create_wrapper(display));
        wl_proxy_set_queue(static_cast<wl_proxy *>(wrapper.get()), m_queue.get());
        m_registry.reset(wl_display_get_registry(static_cast<wl_display *>(wrapper.get())));
        wl_registry_add_listener(m_registry.get(), &registryListener, &m_importers);
        wl_display_roundtrip_queue(display, m_queue.get());
        if (m_importers.second) {
            m_second.reset(zxdg_importer_v2_import_toplevel(m_importers.second.get(), handle));
            zxdg_imported_v2_set_parent_of(m_second.get(), surface);
        } else if (m_importers.first) {
            m_first.reset(zxdg_importer_v1_import(m_importers.first.get(), handle));
            zxdg_imported_v1_set_parent_of(m_first.get(), surface);
        }
        wl_display_flush(display);
    }

private:
    std::unique_ptr<wl_event_queue, Destroyer<wl_event_queue_destroy>> m_queue; // destroyed after its objects
    std::unique_ptr<wl_registry, Destroyer<wl_registry_destroy>> m_registry;
    Importers m_importers;
    std::unique_ptr<zxdg_imported_v2, Destroyer<zxdg_imported_v2_destroy>> m_second;
    std::unique_ptr<zxdg_imported_v1, Destroyer<zxdg_imported_v1_destroy>> m_first;
};

#else

class WaylandParent::Import
{
};

#endif

WaylandParent::WaylandParent(QWindow *window, const QByteArray &handle) : m_window(window), m_handle(handle)
{
    window->installEventFilter(this);
}

WaylandParent::~WaylandParent() = default;

bool WaylandParent::eventFilter(QObject *watched, QEvent *event)
{
#ifdef KELMAR_WAYLAND_PARENT
    if (event->type() == QEvent::Expose && m_window->isExposed() && !m_import) {
        QPlatformNativeInterface *native = QGuiApplication::platformNativeInterface();
        auto *display = static_cast<wl_display *>(native->nativeResourceForIntegration("wl_display"));
        auto *surface = static_cast<wl_surface *>(native->nativeResourceForWindow("surface", m_window));
        if (display && surface)
            m_import = std::make_unique<Import>(display, surface, m_handle.constData());
    }
#endif
    return QObject::eventFilter(watched, event);
}

} // namespace host
