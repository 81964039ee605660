/** The Mobile 3D Graphics API: thin peers of the native engine's objects. */
package javax.microedition.m3g;
