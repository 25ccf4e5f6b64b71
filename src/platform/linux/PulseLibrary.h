// The sound server's client library, loaded only when sound is captured: with the codecs it brings it takes
// 3 MB, which the program would otherwise spend on something that most never switch on.
#pragma once

#include <pulse/pulseaudio.h>

namespace zpsg::platform {

/// The library's functions under their own names, without the prefix.
class PulseLibrary {
public:
    /// Null where the library is not installed. Stays loaded from the first call on.
    static const PulseLibrary *load();

private:
    struct Symbol {
        void *address;
        template <class Function>
        operator Function *() const { // NOLINT(google-explicit-constructor)
            return reinterpret_cast<Function *>(address);
        }
    };

    PulseLibrary();
    Symbol find(const char *name);

    void *library_;
    bool complete_ = true;

public:
    decltype(&pa_mainloop_new) mainloop_new = find("pa_mainloop_new");
    decltype(&pa_mainloop_free) mainloop_free = find("pa_mainloop_free");
    decltype(&pa_mainloop_get_api) mainloop_get_api = find("pa_mainloop_get_api");
    decltype(&pa_mainloop_prepare) mainloop_prepare = find("pa_mainloop_prepare");
    decltype(&pa_mainloop_poll) mainloop_poll = find("pa_mainloop_poll");
    decltype(&pa_mainloop_dispatch) mainloop_dispatch = find("pa_mainloop_dispatch");
    decltype(&pa_mainloop_wakeup) mainloop_wakeup = find("pa_mainloop_wakeup");
    decltype(&pa_operation_unref) operation_unref = find("pa_operation_unref");
    decltype(&pa_strerror) strerror = find("pa_strerror");

    decltype(&pa_context_new) context_new = find("pa_context_new");
    decltype(&pa_context_unref) context_unref = find("pa_context_unref");
    decltype(&pa_context_connect) context_connect = find("pa_context_connect");
    decltype(&pa_context_disconnect) context_disconnect = find("pa_context_disconnect");
    decltype(&pa_context_errno) context_errno = find("pa_context_errno");
    decltype(&pa_context_get_state) context_get_state = find("pa_context_get_state");
    decltype(&pa_context_set_state_callback) context_set_state_callback =
        find("pa_context_set_state_callback");
    decltype(&pa_context_subscribe) context_subscribe = find("pa_context_subscribe");
    decltype(&pa_context_set_subscribe_callback) context_set_subscribe_callback =
        find("pa_context_set_subscribe_callback");
    decltype(&pa_context_get_sink_info_by_name) context_get_sink_info_by_name =
        find("pa_context_get_sink_info_by_name");

    decltype(&pa_proplist_new) proplist_new = find("pa_proplist_new");
    decltype(&pa_proplist_free) proplist_free = find("pa_proplist_free");
    decltype(&pa_proplist_sets) proplist_sets = find("pa_proplist_sets");

    decltype(&pa_stream_new_with_proplist) stream_new_with_proplist = find("pa_stream_new_with_proplist");
    decltype(&pa_stream_unref) stream_unref = find("pa_stream_unref");
    decltype(&pa_stream_connect_record) stream_connect_record = find("pa_stream_connect_record");
    decltype(&pa_stream_disconnect) stream_disconnect = find("pa_stream_disconnect");
    decltype(&pa_stream_get_state) stream_get_state = find("pa_stream_get_state");
    decltype(&pa_stream_set_state_callback) stream_set_state_callback = find("pa_stream_set_state_callback");
    decltype(&pa_stream_set_read_callback) stream_set_read_callback = find("pa_stream_set_read_callback");
    decltype(&pa_stream_peek) stream_peek = find("pa_stream_peek");
    decltype(&pa_stream_drop) stream_drop = find("pa_stream_drop");
};

} // namespace zpsg::platform
