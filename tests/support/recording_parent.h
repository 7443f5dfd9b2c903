// A top-level window that writes down what its controls tell it. What a control handled by itself
// (reflected messages) does not get here, as with any parent.
#pragma once

#include <afxwin.h>

#include <functional>
#include <map>
#include <vector>

class RecordingParent : public CWnd {
public:
    struct Notification {
        UINT code;
        UINT_PTR idFrom;
        HWND hwndFrom;
        std::vector<BYTE> bytes;  ///< the whole structure, as it was when it came

        template <typename Structure>
        const Structure& As() const {
            return *reinterpret_cast<const Structure*>(bytes.data());
        }
    };
    struct Command {
        UINT id;
        UINT code;
        HWND hwnd;
    };

    /// Makes and shows the window; the size is that of the client area, in pixels.
    explicit RecordingParent(CSize sizeClient = CSize(600, 400),
                             DWORD dwStyle = WS_OVERLAPPEDWINDOW);
    ~RecordingParent() override;

    std::vector<Notification> m_notifications;
    std::vector<Command> m_commands;

    void Forget();
    int Count(UINT nCode) const;  ///< notifications of that code
    int CountCommands(UINT nCode) const;
    /// The latest of that code, or null.
    const Notification* Last(UINT nCode) const;

    /// What notifications of that code get as result from now on.
    void SetResult(UINT nCode, LRESULT lResult) { m_results[nCode] = lResult; }
    /// How many bytes to copy of notifications of that code; else an NMHDR's.
    void SetSize(UINT nCode, size_t nBytes) { m_sizes[nCode] = nBytes; }
    /// Called for each notification after it was written down; TRUE: *pResult is the result.
    std::function<bool(NMHDR*, LRESULT*)> m_hook;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    size_t SizeOf(UINT nCode) const;

    std::map<UINT, LRESULT> m_results;
    std::map<UINT, size_t> m_sizes;
};
