// Sockets that notify.
#pragma once

#define __AFXSOCK_H__

#include "afx/objects/async_socket.h"

#include <afxwin.h>
