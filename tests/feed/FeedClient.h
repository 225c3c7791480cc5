// A blocking client of one port of the feed.
#pragma once

#include <asio.hpp>

#include <string>
#include <string_view>

namespace zantroq::feed {

class CFeedClient
{
public:
    explicit CFeedClient(std::uint16_t port) : m_socket(m_context)
    {
        m_socket.connect({asio::ip::address_v4::loopback(), port});
    }

    void Send(std::string_view text) { asio::write(m_socket, asio::buffer(text.data(), text.size())); }
    // Reads up to and including the text; later bytes are kept for the next call. Empty if the feed closes
    // first.
    std::string ReadTo(std::string_view text)
    {
        std::size_t looked = 0;
        for (;;) {
            const std::size_t at = m_received.find(text, looked);
            if (at != std::string::npos) {
                std::string taken = m_received.substr(0, at + text.size());
                m_received.erase(0, at + text.size());
                return taken;
            }
            looked = m_received.size() > text.size() ? m_received.size() - text.size() : 0;
            char bytes[65536];
            std::error_code error;
            const std::size_t count = m_socket.read_some(asio::buffer(bytes), error);
            if (error)
                return {};
            m_received.append(bytes, count);
        }
    }
    std::string Ask(std::string_view line)
    {
        Send(std::string(line) + "\n");
        return ReadTo("!ENDMSG!,\r\n");
    }
    void CloseSendingHalf() { m_socket.shutdown(asio::socket_base::shutdown_send); }
    void Close() { m_socket.close(); }

private:
    asio::io_context m_context;
    asio::ip::tcp::socket m_socket;
    std::string m_received;
};

} // namespace zantroq::feed
