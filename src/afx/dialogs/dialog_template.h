// CDialogTemplate: a dialog template in memory, whose font can be asked for and replaced before a
// dialog is made of it. Both kinds of templates are read, DIALOG and DIALOGEX. Point sizes are
// points; texts are of the process's code page, which templates hold as UTF-16.
#pragma once

#include <afxwin.h>

class QVAFX_API CDialogTemplate {
public:
    /// Copies the template; null makes an empty object.
    explicit CDialogTemplate(const DLGTEMPLATE* pTemplate = nullptr);
    /// Takes the memory over.
    explicit CDialogTemplate(HGLOBAL hGlobal);
    ~CDialogTemplate();
    CDialogTemplate(const CDialogTemplate&) = delete;
    CDialogTemplate& operator=(const CDialogTemplate&) = delete;

    /// Copies a template out of the resource chain. FALSE, and nothing changed, if there is none
    /// or no memory.
    BOOL Load(LPCTSTR lpDialogTemplateID);
    /// Copies the template in place of the one before. FALSE without memory.
    BOOL Attach(LPCDLGTEMPLATE pTemplate);
    /// Memory that holds the template, the caller's from now on: GlobalFree.
    HGLOBAL Detach();

    BOOL HasFont() const;
    /// FALSE, and both as they were, without a template or where it names no font.
    BOOL GetFont(CString& strFaceName, WORD& nFontSize) const;
    static BOOL GetFont(const DLGTEMPLATE* pTemplate, CString& strFaceName, WORD& nFontSize);
    /// Gives the template a font, or another one. FALSE, and nothing changed, without a template or
    /// memory.
    BOOL SetFont(LPCTSTR lpFaceName, WORD nFontSize);
    /// The font of the system's own dialogs; size 0 for its own.
    BOOL SetSystemFont(WORD nFontSize = 0);

    void GetSizeInDialogUnits(SIZE* pSize) const;
    /// In the pixels that a dialog of the template's font takes up, without its frame.
    void GetSizeInPixels(SIZE* pSize) const;

    HGLOBAL m_hTemplate = nullptr;
    DWORD m_dwTemplateSize = 0;  ///< bytes
    BOOL m_bSystemFont = FALSE;  ///< SetSystemFont was called

private:
    BOOL Copy(const void* pTemplate, DWORD dwBytes);
};
