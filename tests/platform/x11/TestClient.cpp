// SPDX-License-Identifier: MIT
#include "TestClient.h"

#include "support/Await.h"

#include <QImage>

#include <stdexcept>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace {

template <typename Reply, typename Cookie>
XcbPtr<Reply> reply(xcb_connection_t *c, Reply *(*get)(xcb_connection_t *, Cookie, xcb_generic_error_t **),
                    Cookie cookie)
{
    return XcbPtr<Reply>(get(c, cookie, nullptr));
}

} // namespace

TestClient::TestClient(const VirtualDisplay &display) : m_xcb(xcb_connect(display.name().constData(), nullptr))
{
    if (xcb_connection_has_error(m_xcb) != 0) {
        throw std::runtime_error("no display");
    }
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data->root;
    reply(m_xcb, xcb_xkb_use_extension_reply, xcb_xkb_use_extension(m_xcb, 1, 0));
}

TestClient::~TestClient()
{
    xcb_disconnect(m_xcb);
}

xcb_atom_t TestClient::atom(const QByteArray &name)
{
    return reply(m_xcb, xcb_intern_atom_reply, xcb_intern_atom(m_xcb, 0, uint16_t(name.size()), name.constData()))
        ->atom;
}

void TestClient::sync()
{
    reply(m_xcb, xcb_get_input_focus_reply, xcb_get_input_focus(m_xcb));
}

xcb_window_t TestClient::addWindow(const QByteArray &windowClass, xcb_window_t parent)
{
    const auto window = xcb_generate_id(m_xcb);
    const uint32_t values[] = {0xFFFFFF, XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                             XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_PROPERTY_CHANGE |
                                             XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_FOCUS_CHANGE};
    xcb_create_window(m_xcb, XCB_COPY_FROM_PARENT, window, parent == noWindow ? m_root : parent, 0, 0, 600, 400, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK,
                      values);
    if (!windowClass.isEmpty()) {
        xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                            uint32_t(windowClass.size()), windowClass.constData());
    }
    xcb_map_window(m_xcb, window);
    sync();
    return window;
}

void TestClient::destroyWindow(xcb_window_t window)
{
    xcb_destroy_window(m_xcb, window);
    sync();
}

void TestClient::focus(xcb_window_t window)
{
    xcb_set_input_focus(m_xcb, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    sync();
}

xcb_window_t TestClient::focusedWindow()
{
    return reply(m_xcb, xcb_get_input_focus_reply, xcb_get_input_focus(m_xcb))->focus;
}

void TestClient::press(int evdevCode)
{
    fake(XCB_KEY_PRESS, evdevCode + 8);
}

void TestClient::release(int evdevCode)
{
    fake(XCB_KEY_RELEASE, evdevCode + 8);
}

void TestClient::tap(int evdevCode)
{
    press(evdevCode);
    release(evdevCode);
}

void TestClient::pressOnKeyboard(int evdevCode)
{
    fakeOnKeyboard(XCB_INPUT_DEVICE_KEY_PRESS, evdevCode);
}

void TestClient::releaseOnKeyboard(int evdevCode)
{
    fakeOnKeyboard(XCB_INPUT_DEVICE_KEY_RELEASE, evdevCode);
}

void TestClient::moveTo(int x, int y)
{
    fake(XCB_MOTION_NOTIFY, 0, x, y);
}

void TestClient::click(int x, int y)
{
    moveTo(x, y);
    fake(XCB_BUTTON_PRESS, 1);
    fake(XCB_BUTTON_RELEASE, 1);
}

QRect TestClient::clickForMenu(int x, int y)
{
    const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_xcb, m_root, XCB_CW_EVENT_MASK, &events);
    click(x, y);
    const auto shown = next([](const xcb_generic_event_t &event) {
        return eventType(event) == XCB_MAP_NOTIFY && eventAs<xcb_map_notify_event_t>(event).override_redirect != 0;
    });
    if (!shown) {
        return {};
    }
    const auto window = eventAs<xcb_map_notify_event_t>(*shown).window;
    const auto frame = reply(m_xcb, xcb_get_geometry_reply, xcb_get_geometry(m_xcb, window));
    return frame ? QRect(frame->x, frame->y, frame->width, frame->height) : QRect();
}

void TestClient::fake(uint8_t type, int detail, int x, int y)
{
    xcb_test_fake_input(m_xcb, type, uint8_t(detail), XCB_CURRENT_TIME, m_root, int16_t(x), int16_t(y), 0);
    sync();
}

void TestClient::fakeOnKeyboard(uint8_t type, int evdevCode)
{
    const auto devices = reply(m_xcb, xcb_input_list_input_devices_reply, xcb_input_list_input_devices(m_xcb));
    uint8_t keyboard = 0;
    for (auto device = xcb_input_list_input_devices_devices_iterator(devices.get()); device.rem > 0;
         xcb_input_device_info_next(&device)) {
        // "XTEST keyboard" is listed before the server's own.
        if (device.data->device_use == XCB_INPUT_DEVICE_USE_IS_X_EXTENSION_KEYBOARD) {
            keyboard = device.data->device_id;
        }
    }
    const auto first = xcb_get_extension_data(m_xcb, &xcb_input_id)->first_event;
    xcb_test_fake_input(m_xcb, uint8_t(first + type), uint8_t(evdevCode + 8), XCB_CURRENT_TIME, m_root, 0, 0, keyboard);
    sync();
}

bool TestClient::grabsKey(int evdevCode, uint16_t modifiers)
{
    const XcbPtr<xcb_generic_error_t> error(
        xcb_request_check(m_xcb, xcb_grab_key_checked(m_xcb, 0, m_root, modifiers, uint8_t(evdevCode + 8),
                                                      XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC)));
    return !error;
}

void TestClient::lockGroup(uint8_t group)
{
    xcb_xkb_latch_lock_state(m_xcb, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, group, 0, 0, 0);
    sync();
}

bool TestClient::ownsSelection(xcb_window_t window, const QByteArray &selection)
{
    const auto name = atom(selection);
    xcb_set_selection_owner(m_xcb, window, name, XCB_CURRENT_TIME);
    return reply(m_xcb, xcb_get_selection_owner_reply, xcb_get_selection_owner(m_xcb, name))->owner == window;
}

xcb_window_t TestClient::selectionOwner()
{
    return reply(m_xcb, xcb_get_selection_owner_reply, xcb_get_selection_owner(m_xcb, atom("CLIPBOARD")))->owner;
}

QRect TestClient::extent(QRgb colour, QSize corner)
{
    const auto width = uint16_t(corner.width());
    const auto height = uint16_t(corner.height());
    const auto screen = reply(m_xcb, xcb_get_image_reply,
                              xcb_get_image(m_xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, 0, 0, width, height, UINT32_MAX));
    const QImage image(xcb_get_image_data(screen.get()), width, height, QImage::Format_RGB32);
    QRect area;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            area |= image.pixel(x, y) == colour ? QRect(x, y, 1, 1) : QRect();
        }
    }
    return area;
}

XcbPtr<xcb_generic_event_t> TestClient::next(const std::function<bool(const xcb_generic_event_t &)> &condition)
{
    XcbPtr<xcb_generic_event_t> event;
    const bool found = await([&] {
        do {
            event.reset(xcb_poll_for_event(m_xcb));
        } while (event && !condition(*event));
        return event != nullptr;
    });
    return found ? std::move(event) : nullptr;
}

XcbPtr<xcb_generic_event_t> TestClient::next(uint8_t type)
{
    return next([type](const xcb_generic_event_t &event) { return eventType(event) == type; });
}

std::string TestClient::takeKeys()
{
    sync();
    QStringList keys;
    while (const XcbPtr<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb)}) {
        const auto type = eventType(*event);
        if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
            const auto &key = eventAs<xcb_key_press_event_t>(*event);
            keys << QStringLiteral("%1%2/%3")
                        .arg(QChar(type == XCB_KEY_PRESS ? u'+' : u'-'))
                        .arg(key.detail)
                        .arg(key.state & 0xFF);
        }
    }
    return keys.join(QChar(u' ')).toStdString();
}

int TestClient::takeEvents(uint8_t type)
{
    sync();
    int count = 0;
    while (const XcbPtr<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb)}) {
        count += eventType(*event) == type ? 1 : 0;
    }
    return count;
}
