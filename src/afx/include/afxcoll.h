// The ready-made collections.
#pragma once

#include <afxtempl.h>

class CByteArray : public CArray<BYTE, BYTE> {};
class CWordArray : public CArray<WORD, WORD> {};
class CDWordArray : public CArray<DWORD, DWORD> {};
class CUIntArray : public CArray<UINT, UINT> {};
class CPtrArray : public CArray<void*, void*> {};
class CObArray : public CArray<CObject*, CObject*> {};
class CStringArray : public CArray<CString, LPCTSTR> {};

class CPtrList : public CList<void*, void*> {
public:
    explicit CPtrList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};
class CObList : public CList<CObject*, CObject*> {};
class CStringList : public CList<CString, LPCTSTR> {};

class CMapStringToPtr : public CMap<CString, LPCTSTR, void*, void*> {};
class CMapStringToOb : public CMap<CString, LPCTSTR, CObject*, CObject*> {};
class CMapStringToString : public CMap<CString, LPCTSTR, CString, LPCTSTR> {};
class CMapPtrToPtr : public CMap<void*, void*, void*, void*> {};
class CMapWordToPtr : public CMap<WORD, WORD, void*, void*> {};
