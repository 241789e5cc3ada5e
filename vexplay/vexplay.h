#pragma once
/*
 * vexplay: plays short video clips into a native window.
 *
 * A clip is opened on a port handed out by vexplay_GetPort, played into a
 * window with vexplay_Play and closed with vexplay_CloseFile, which also gives
 * the port back. Every operation returns nonzero on success and 0 on failure.
 *
 * Threads: each playing port decodes on a thread of the library's own, and the
 * file-end callback runs on that thread. Any operation may be called from the
 * callback, including closing, reopening and playing its own port again.
 * Once vexplay_CloseFile returns, no callback of that port runs any more (a
 * close from inside a callback cannot wait for others running at the time).
 * If the window a port plays into is destroyed, the port stops by itself,
 * waits for its running callback and calls nothing after; it stays held until
 * vexplay_CloseFile, or until vexplay_GetPort runs out of free ports.
 */

#ifdef __cplusplus
extern "C" {
#endif

/* Called once when a playing clip has shown its last frame. */
typedef void (*VEXPLAY_CALLBACK)(int port, void* user);

/* Hands out a free port. */
int vexplay_GetPort(int* port);

/* Opens a local clip, named by a narrow path, on a held port; a clip already
   open there is dropped first. Only local files are read. */
int vexplay_OpenFile(int port, const char* path);

/* Stops playing, closes the clip and gives the port back. */
int vexplay_CloseFile(int port);

/* Starts playing the open clip into the window given by its native handle
   (the value of QWidget::winId()). Frames are scaled to fit the window with
   their aspect ratio kept. The first play into a window must be called on
   the GUI thread; later ones, into the same window, from any thread. */
int vexplay_Play(int port, void* hWnd);

/* 1: frames are shown at the pace of their timestamps (the default);
   0: as fast as they decode. Read by the next vexplay_Play. */
int vexplay_SetPlayFlag(int port, int flag);

/* Registers the function called on the library's thread when the clip ends;
   a null callback clears it. */
int vexplay_SetFileEndCallback(int port, VEXPLAY_CALLBACK callback, void* user);

/* Further registrations, kept for callers that clear them; the events they
   stand for never occur in this library, so they are never called. */
int vexplay_SetCallback125(int port, VEXPLAY_CALLBACK callback, void* user);
int vexplay_SetCallback157(int port, VEXPLAY_CALLBACK callback, void* user);
int vexplay_SetCallback109(int port, VEXPLAY_CALLBACK callback, void* user);

#ifdef __cplusplus
}
#endif
