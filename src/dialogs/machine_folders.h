// What a machine on the network has to offer: its shared folders, the folders below them, and
// whether it answers at all. The machine browser (browse_machine_dlg.h) and the dialog that asks
// for an installation know the network by this interface alone.
//
// Two implementations come with it. QVNetworkFolders asks the platform's network and shell and is
// what everybody uses who says nothing. QVFileFolders makes plain file calls: for systems without
// those services, where "\\machine\share" opens all the same, as does a folder that is linked into
// a Wine prefix as dosdevices/unc/machine/share.
//
// Texts are in the process's code page; inside, the wide calls are used. A folder whose name that
// page cannot hold, or that is longer than 255 bytes, goes by the platform's short name for it,
// which leads there as well, and is left out if it has none. Paths of 260 characters and more are
// not read. Images are indices in the shell's small image list, -1 for none. Nothing here shows a
// message, and every call lasts as long as the network lets it.

#pragma once

#include "frame/qv_api.h"

#include <afxwin.h>

// Gets the folders one by one as they are read.
class QV_CONTROLS_API QVFolderTaker {
public:
    // The name without path; it goes with the call. FALSE ends the reading.
    virtual BOOL TakeFolder(LPCSTR pszName, int nImage) = 0;

protected:
    ~QVFolderTaker() = default;
};

// pszMachine is a machine's UNC name, "\\machine". What cannot be read has no folders. Without
// memory a CMemoryException or std::bad_alloc may leave a call, as whatever TakeFolder throws does.
class QV_CONTROLS_API QVMachineFolders {
public:
    virtual ~QVMachineFolders();

    // The shared disk folders of a machine.
    virtual void ListShares(LPCSTR pszMachine, QVFolderTaker& taker) = 0;
    // The folders in a folder.
    virtual void ListSubfolders(LPCSTR pszPath, QVFolderTaker& taker) = 0;
    virtual BOOL MachineAnswers(LPCSTR pszMachine) = 0;
    // Of a machine or a folder.
    virtual int GetImage(LPCSTR pszPath) = 0;

    // The platform's network. One object for all, which lives as long as the module.
    static QVMachineFolders& Network();
};

class QV_CONTROLS_API QVNetworkFolders : public QVMachineFolders {
public:
    void ListShares(LPCSTR pszMachine, QVFolderTaker& taker) override;
    void ListSubfolders(LPCSTR pszPath, QVFolderTaker& taker) override;
    // What the shell knows of it says so.
    BOOL MachineAnswers(LPCSTR pszMachine) override;
    int GetImage(LPCSTR pszPath) override;
};

class QV_CONTROLS_API QVFileFolders : public QVMachineFolders {
public:
    // As subfolders: to file calls a machine is a folder of its shares, if it is anything.
    void ListShares(LPCSTR pszMachine, QVFolderTaker& taker) override;
    void ListSubfolders(LPCSTR pszPath, QVFolderTaker& taker) override;
    BOOL MachineAnswers(LPCSTR pszMachine) override;
    // That of any folder, whatever the path: the disk is not asked.
    int GetImage(LPCSTR pszPath) override;
};
