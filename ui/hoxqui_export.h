
#ifndef HOXQUI_EXPORT_H
#define HOXQUI_EXPORT_H

#ifdef HOXQUI_STATIC_DEFINE
#  define HOXQUI_EXPORT
#  define HOXQUI_NO_EXPORT
#else
#  ifndef HOXQUI_EXPORT
#    ifdef hoxqui_EXPORTS
        /* We are building this library */
#      define HOXQUI_EXPORT __attribute__((visibility("default")))
#    else
        /* We are using this library */
#      define HOXQUI_EXPORT __attribute__((visibility("default")))
#    endif
#  endif

#  ifndef HOXQUI_NO_EXPORT
#    define HOXQUI_NO_EXPORT __attribute__((visibility("hidden")))
#  endif
#endif

#ifndef HOXQUI_DEPRECATED
#  define HOXQUI_DEPRECATED __attribute__ ((__deprecated__))
#endif

#ifndef HOXQUI_DEPRECATED_EXPORT
#  define HOXQUI_DEPRECATED_EXPORT HOXQUI_EXPORT HOXQUI_DEPRECATED
#endif

#ifndef HOXQUI_DEPRECATED_NO_EXPORT
#  define HOXQUI_DEPRECATED_NO_EXPORT HOXQUI_NO_EXPORT HOXQUI_DEPRECATED
#endif

#if 0 /* DEFINE_NO_DEPRECATED */
#  ifndef HOXQUI_NO_DEPRECATED
#    define HOXQUI_NO_DEPRECATED
#  endif
#endif

#endif /* HOXQUI_EXPORT_H */
