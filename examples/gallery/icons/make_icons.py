#!/usr/bin/env python3
"""Draws the gallery's icons from the table in this file.

    make_icons.py           write <name>.svg for every icon
    make_icons.py --check   exit with 1 when a file on disk differs from the table

An icon is painted with a brush and no pen, so a file is one <path> of filled outlines without a fill
or a stroke of its own. The table describes what a pen would do instead; here each stroke becomes its
outline. Solid outlines run clockwise and holes anticlockwise, which is what SVG's default fill rule
(nonzero) needs: solid shapes that overlap unite, a hole counts where it lies on one solid shape.

The grid is 24 x 24 with 2 clear units on every side, the pen 1.5 wide with round ends and joins, so
the pen's centre stays between 2.75 and 21.25. <name>-bold is the same drawing with a pen of 2, moved
inwards so that its outer edge stays where it was.

Statements, separated by ";" (x right, y down, angles in degrees clockwise from the right):

    line P P ...        stroke through points
    loop P P ...        the same, closed
    solid P P ...       a closed loop filled, with the pen's outer edge as its edge
    ring C R            circle, stroked            disc C R      filled, with the pen's outer edge
    arc C R FROM TO     part of a circle, stroked; FROM > TO runs anticlockwise
    box X,Y W,H R       rounded rectangle, stroked    block X,Y W,H R   filled
    dot C [R]           a dot, 1.1 unless told, a little larger with the bold pen
    gear C OUTER INNER N, star C OUTER INNER N, rays C FROM TO N
    use NAME            the statements of another icon

A point is "x,y"; "x,y:r" rounds the corner there, "x,y@r" is reached by an arc of radius r
(clockwise, anticlockwise when r is negative, the long way round with "!" at the end).

In front of a statement, "cut" makes it a hole (inside something solid only) and "fill" makes what is
closed solid. At the start of an icon, "turn DEGREES", "mirror" and "scale FACTOR" move everything about
the centre, and "slash" clears a diagonal gap and strikes the icon through.
"""

import argparse
import math
import re
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
CENTRE = (12.0, 12.0)
PEN, BOLD_PEN = 1.5, 2.0
MARGIN = 2.0

ICONS = {
    # marks and signs
    "close": "line 5.75,5.75 18.25,18.25; line 18.25,5.75 5.75,18.25",
    "check": "line 4.5,12.75 9.5,17.75 19.5,6.75",
    "plus": "line 12,4.5 12,19.5; line 4.5,12 19.5,12",
    "minus": "line 4.5,12 19.5,12",
    "more-horizontal": "dot 5.5,12 1.5; dot 12,12 1.5; dot 18.5,12 1.5",
    "more-vertical": "dot 12,5.5 1.5; dot 12,12 1.5; dot 12,18.5 1.5",
    "menu": "line 3.75,6.5 20.25,6.5; line 3.75,12 20.25,12; line 3.75,17.5 20.25,17.5",
    "info": "ring 12,12 9.25; line 12,11.25 12,16.5; dot 12,7.75",
    "info-filled": "disc 12,12 9.25; cut line 12,11.25 12,16.5; cut dot 12,7.75",
    "warning": "loop 12,3.25:2 21.5,20.25:2 2.5,20.25:2; line 12,9.5 12,13.75; dot 12,16.9",
    "warning-filled": "solid 12,3.25:2 21.5,20.25:2 2.5,20.25:2; cut line 12,9.5 12,13.75; cut dot 12,16.9",
    "error": "ring 12,12 9.25; line 12,7.25 12,12.75; dot 12,16.25",
    "error-filled": "disc 12,12 9.25; cut line 12,7.25 12,12.75; cut dot 12,16.25",
    "success": "ring 12,12 9.25; line 7.75,12.5 10.75,15.5 16.25,9",
    "success-filled": "disc 12,12 9.25; cut line 7.75,12.5 10.75,15.5 16.25,9",
    "help": "ring 12,12 9.25; line 9.35,9.6 14.19,11.02@2.65! 12,13.4:1.2 12,13.9; dot 12,16.9",
    "blocked": "ring 12,12 9.25; line 5.6,5.6 18.4,18.4",
    "dnd": "ring 12,12 9.25; line 8,12 16,12",
    "dnd-filled": "disc 12,12 9.25; cut line 8,12 16,12",

    # arrows
    "arrow-up": "line 12,20 12,4; line 5.25,10.75 12,4 18.75,10.75",
    "arrow-right": "turn 90; use arrow-up",
    "arrow-down": "turn 180; use arrow-up",
    "arrow-left": "turn 270; use arrow-up",
    "chevron-up": "line 5,15.5 12,8.5 19,15.5",
    "chevron-right": "turn 90; use chevron-up",
    "chevron-down": "turn 180; use chevron-up",
    "chevron-left": "turn 270; use chevron-up",
    "download": "line 12,3.5 12,15; line 6.75,10 12,15.25 17.25,10; line 4,20.25 20,20.25",
    "upload": "line 12,15.25 12,3.5; line 6.75,8.75 12,3.5 17.25,8.75; line 4,20.25 20,20.25",
    "external": "line 13.75,3.75 20.25,3.75 20.25,10.25; line 11.5,12.5 20.25,3.75;"
                " line 9.5,4.75 3.75,4.75:2.5 3.75,20.25:2.5 19.25,20.25:2.5 19.25,14.5",
    "refresh": "arc 12,12 8.75 -20 -330; line 20.5,3.75 20.5,9 15.25,9",
    "undo": "line 8,4.25 3.5,8.75 8,13.25; line 3.5,8.75 14.75,8.75 14.75,20.25@5.75 8.75,20.25",
    "redo": "mirror; use undo",
    "sort": "line 7.5,19.75 7.5,4.25; line 3.5,8.25 7.5,4.25 11.5,8.25;"
            " line 16.5,4.25 16.5,19.75; line 12.5,15.75 16.5,19.75 20.5,15.75",
    "expand": "line 3.5,9.25 3.5,3.5:1 9.25,3.5; line 14.75,3.5 20.5,3.5:1 20.5,9.25;"
              " line 20.5,14.75 20.5,20.5:1 14.75,20.5; line 9.25,20.5 3.5,20.5:1 3.5,14.75",
    "collapse": "line 3.5,9.25 9.25,9.25:1 9.25,3.5; line 14.75,3.5 14.75,9.25:1 20.5,9.25;"
                " line 20.5,14.75 14.75,14.75:1 14.75,20.5; line 9.25,20.5 9.25,14.75:1 3.5,14.75",
    "sign-out": "line 14.5,7.75 14.5,3.5:2.25 3.75,3.5:2.25 3.75,20.5:2.25 14.5,20.5:2.25 14.5,16.25;"
                " line 9.25,12 21,12; line 17,8 21,12 17,16",

    # editing
    "search": "ring 10.25,10.25 7.25; line 15.5,15.5 21,21",
    "zoom-in": "use search; line 10.25,7 10.25,13.5; line 7,10.25 13.5,10.25",
    "zoom-out": "use search; line 7,10.25 13.5,10.25",
    "pen": "loop 3.25,20.75:0.8 4.75,15.25 15.6,4.4:1.75 19.6,8.4:1.75 8.75,19.25; line 12.75,7.25 16.75,11.25",
    "pen-filled": "solid 3.25,20.75:0.8 4.75,15.25 15.6,4.4:1.75 19.6,8.4:1.75 8.75,19.25; cut line 12.9,7.9 16.1,11.1",
    "copy": "box 8.5,8.5 12.25,12.25 2.5;"
            " line 5.5,15.5 3.25,15.5:2.25 3.25,3.25:2.5 15.5,3.25:2.25 15.5,5.5",
    "paste": "line 8.25,4.75 4.5,4.75:2.25 4.5,21.25:2.5 19.5,21.25:2.5 19.5,4.75:2.25 15.75,4.75;"
             " box 8.75,2.75 6.5,4 1.5; line 8.5,12 15.5,12; line 8.5,16.25 13,16.25",
    "cut": "ring 6.25,6.25 3; ring 6.25,17.75 3; line 8.5,8.25 20,18; line 8.5,15.75 20,6",
    "trash": "line 3.5,6 20.5,6; line 8.5,6 8.5,2.9:1.25 15.5,2.9:1.25 15.5,6;"
             " line 5.5,6 6.5,21.1:2.25 17.5,21.1:2.25 18.5,6; line 10,10.5 10,16.5; line 14,10.5 14,16.5",
    "link": "turn -45; line 10,7.75 7,7.75 7,16.25@-4.25 10,16.25; line 14,7.75 17,7.75 17,16.25@4.25 14,16.25;"
            " line 8.5,12 15.5,12",
    "attachment": "turn 45; scale 0.98; line 16.9,7.25 16.9,16.25 7.4,16.25@4.75 7.4,6.25 13.7,6.25@3.15"
                  " 13.7,15.75 10.6,15.75@1.55 10.6,8",
    "filter": "loop 3.25,4.25:1 20.75,4.25:1 14.5,12 14.5,18 9.5,20.75:1 9.5,12",
    "filter-filled": "fill use filter",
    "tag": "loop 3.25,3.25:2 11.5,3.25:1.5 21.5,13.25:1.75 13.25,21.5:1.75 3.25,11.5:1.5; dot 7.75,7.75 1.35",
    "tag-filled": "solid 3.25,3.25:2 11.5,3.25:1.5 21.5,13.25:1.75 13.25,21.5:1.75 3.25,11.5:1.5; cut dot 7.75,7.75 1.5",
    "text-size": "line 2.9,18.5 7.75,5.5 12.6,18.5; line 4.6,14.25 10.9,14.25;"
                 " line 14.5,18.5 17.75,9.75 21,18.5; line 15.65,15.6 19.85,15.6",
    "code": "line 8,5.5 2.9,12 8,18.5; line 16,5.5 21.1,12 16,18.5; line 13.5,4 10.5,20",

    # things
    "settings": "gear 12,12 9.25 6.9 8; ring 12,12 2.9",
    "settings-filled": "fill gear 12,12 9.25 6.9 8; cut disc 12,12 2.4",
    "sliders": "line 3.75,7 8.25,7; ring 11,7 2.5; line 13.75,7 20.25,7;"
               " line 3.75,17 10.25,17; ring 13,17 2.5; line 15.75,17 20.25,17",
    "home": "loop 12,2.9:1.25 20.5,9.9:1.5 20.5,20.75:2.25 3.5,20.75:2.25 3.5,9.9:1.5;"
            " line 9.25,20.5 9.25,14.25:1 14.75,14.25:1 14.75,20.5",
    "home-filled": "solid 12,2.9:1.25 20.5,9.9:1.5 20.5,20.75:2.25 3.5,20.75:2.25 3.5,9.9:1.5;"
                   " cut block 10.75,14.75 2.5,4.5 0.5",
    "calendar": "box 3.25,4.75 17.5,16 2.5; line 3.5,9.75 20.5,9.75; line 8,2.75 8,6.25; line 16,2.75 16,6.25",
    "calendar-filled": "block 3.25,4.75 17.5,16 2.5; cut line 5.5,9.75 18.5,9.75; line 8,2.75 8,6.25; line 16,2.75 16,6.25",
    "clock": "ring 12,12 9.25; line 12,6.5 12,12 15.75,14.25",
    "clock-filled": "disc 12,12 9.25; cut line 12,6.5 12,12 15.75,14.25",
    "bell": "loop 4,17:1 6,13.75:2 6,9 18,9@6 18,13.75:2 20,17:1; line 9.9,19.8 14.1,19.8@-2.3",
    "bell-filled": "solid 4,17:1 6,13.75:2 6,9 18,9@6 18,13.75:2 20,17:1; line 9.9,19.8 14.1,19.8@-2.3",
    "bell-off": "slash; use bell",
    "mail": "box 2.75,4.5 18.5,15 2.5; line 3.5,7.25 12,13.5:1.5 20.5,7.25",
    "mail-filled": "block 2.75,4.5 18.5,15 2.5; cut line 5.5,8.25 12,13:1.5 18.5,8.25",
    "send": "loop 3.25,3.5:1 21.25,12:1 3.25,20.5:1 5.75,12; line 5.75,12 12.5,12",
    "send-filled": "solid 3.25,3.5:1 21.25,12:1 3.25,20.5:1 5.75,12; cut line 7.5,12 12.5,12",
    "chat": "loop 2.9,3.75:3 21.1,3.75:3 21.1,17.25:3 12.25,17.25 7.25,21:0.9 7.25,17.25 2.9,17.25:3",
    "chat-filled": "fill use chat",
    "folder": "loop 2.9,4.25:2.25 8.9,4.25:1 11.4,7:1 21.1,7:2.25 21.1,19.75:2.5 2.9,19.75:2.5",
    "folder-filled": "fill use folder",
    "file": "loop 4.75,2.75:2.5 13.5,2.75:1 19.25,8.5:1 19.25,21.25:2.5 4.75,21.25:2.5;"
            " line 13.25,3 13.25,8.75:1.25 19,8.75",
    "file-filled": "solid 4.75,2.75:2.5 13.5,2.75:1 19.25,8.5:1 19.25,21.25:2.5 4.75,21.25:2.5;"
                   " cut line 8.75,13 15.25,13; cut line 8.75,17 13,17",
    "file-text": "use file; line 8.75,13.25 15.25,13.25; line 8.75,17 13,17",
    "image": "box 2.75,3.75 18.5,16.5 2.75; ring 8.25,8.75 1.6; line 3.25,17.75 8.5,13.25:1.25 12.25,16.5"
             " 16.25,11.75:1.25 20.75,16.5",
    "camera": "loop 2.75,6.75:2.5 7.25,6.75 8.9,4:1 15.1,4:1 16.75,6.75 21.25,6.75:2.5 21.25,20:2.5 2.75,20:2.5;"
              " ring 12,13.1 3.6",
    "camera-filled": "solid 2.75,6.75:2.5 7.25,6.75 8.9,4:1 15.1,4:1 16.75,6.75 21.25,6.75:2.5 21.25,20:2.5 2.75,20:2.5;"
                     " cut disc 12,13.1 3; disc 12,13.1 1.2",
    "bookmark": "loop 5.5,2.9:2.25 18.5,2.9:2.25 18.5,21:1 12,16.5:1 5.5,21:1",
    "bookmark-filled": "fill use bookmark",
    "flag": "line 5,21.25 5,2.9; line 5,4.25 19.5,4.25:1 16,9:1 19.5,13.75:1 5,13.75",
    "flag-filled": "line 5,21.25 5,2.9; solid 5,4.25 19.5,4.25:1 16,9:1 19.5,13.75:1 5,13.75",
    "pin": "turn 35; scale 0.96; loop 8,2.75:1 16,2.75:1 15.25,9:2 18.5,13.75:1.25 5.5,13.75:1.25 8.75,9:2;"
           " line 12,13.75 12,21.25",
    "pin-filled": "turn 35; scale 0.96; solid 8,2.75:1 16,2.75:1 15.25,9:2 18.5,13.75:1.25 5.5,13.75:1.25 8.75,9:2;"
                  " line 12,13.75 12,21.25",
    "favorite": "star 12,12.6 9.9 4.6 5",
    "favorite-filled": "fill use favorite",
    "star": "use favorite",
    "star-filled": "fill use favorite",
    "heart": "loop 12,20.35:1.5 4.17,12.52 12,6.2@4.85! 19.83,12.52@4.85!",
    "heart-filled": "fill use heart",
    "lock": "box 4.5,10.25 15,11 2.5; line 7.75,10.25 7.75,7 16.25,7@4.25 16.25,10.25; dot 12,15.75 1.4",
    "lock-filled": "block 4.5,10.25 15,11 2.5; line 7.75,10.25 7.75,7 16.25,7@4.25 16.25,10.25; cut dot 12,15.75 1.5",
    "unlock": "box 4.5,10.25 15,11 2.5; line 7.75,10.25 7.75,7 15.83,5.18@4.25; dot 12,15.75 1.4",
    "key": "ring 8,16 5.25; line 11.75,12.25 20.5,3.5; line 16.25,7.75 19.25,10.75",
    "shield": "loop 12,2.9:1 19.75,5.5:1 19.75,12 12,21.1@9.6 4.25,12@9.6 4.25,5.5:1",
    "globe": "ring 12,12 9.25; line 3,12 21,12; loop 12,2.75 12,21.25@11.5 12,2.75@11.5",
    "sun": "ring 12,12 4; rays 12,12 7.75 9.25 8",
    "sun-filled": "disc 12,12 4; rays 12,12 7.75 9.25 8",
    "moon": "loop 20.5,14.1 9.9,3.5@8.9! 20.5,14.1@-8.6",
    "moon-filled": "fill use moon",
    "contrast": "ring 12,12 9.25; solid 12.5,5.5 12.5,18.5@6.52",
    "palette": "loop 12,21.25 21.25,12@9.25! 17.5,15.75@3.75 15.6,15.75 14.2,19.06@-1.95 12,21.25@2.2;"
               " dot 7.4,12 1.35; dot 9.4,7.9 1.35; dot 14,6.9 1.35",
    "grid": "box 3.5,3.5 6.75,6.75 1.5; box 13.75,3.5 6.75,6.75 1.5; box 3.5,13.75 6.75,6.75 1.5; box 13.75,13.75 6.75,6.75 1.5",
    "list": "dot 4.25,6.5 1.25; dot 4.25,12 1.25; dot 4.25,17.5 1.25;"
            " line 8.75,6.5 20.5,6.5; line 8.75,12 20.5,12; line 8.75,17.5 20.5,17.5",
    "layout": "box 2.75,3.75 18.5,16.5 2.75; line 9.25,4 9.25,20; line 9.5,11 21,11",
    "drag": "dot 9,5.5 1.4; dot 15,5.5 1.4; dot 9,12 1.4; dot 15,12 1.4; dot 9,18.5 1.4; dot 15,18.5 1.4",
    "keyboard": "box 2.75,5 18.5,14 2.5; dot 6.75,9.25 1; dot 10.25,9.25 1; dot 13.75,9.25 1; dot 17.25,9.25 1;"
                " dot 6.75,12.25 1; dot 10.25,12.25 1; dot 13.75,12.25 1; dot 17.25,12.25 1; line 8.25,15.5 15.75,15.5",
    "wifi": "dot 12,18.5 1.5; arc 12,18.5 5 -135 -45; arc 12,18.5 9 -135 -45; arc 12,18.5 13 -135 -45",
    "whiteboard": "box 2.75,3.5 18.5,13 2.25; line 6.5,11.75 9.5,8.25@3 12.25,11.25@3 17.5,8@-4; line 8.75,16.75 7,20.9; line 15.25,16.75 17,20.9",
    "emoji-happy": "ring 12,12 9.25; dot 8.75,9.75 1.25; dot 15.25,9.75 1.25; line 7.9,14 16.1,14@-4.9",
    "emoji-happy-filled": "disc 12,12 9.25; cut dot 8.75,9.75 1.25; cut dot 15.25,9.75 1.25; cut line 7.9,14 16.1,14@-4.9",
    "emoji-sad": "ring 12,12 9.25; dot 8.75,9.75 1.25; dot 15.25,9.75 1.25; line 8.1,16.5 15.9,16.5@4.9",
    "spinner": "arc 12,12 9.25 -90 180",

    # people
    "user": "ring 12,7.25 4.5; line 3.75,20.75 20.25,20.75@8.8",
    "user-filled": "disc 12,7.25 4.5; solid 4,20.5:0 20,20.5@8.6",
    "users": "ring 9,7.75 4; line 2.75,20 15.25,20@6.6; arc 15.4,7.75 4 -72 72; line 17.75,14.1 21.25,19.2@6.6",
    "users-filled": "disc 9,7.75 4; solid 2.9,19.75 15.1,19.75@6.5; arc 15.4,7.75 4 -72 72; line 17.75,14.1 21.25,19.2@6.6",
    "user-add": "ring 10,7.25 4.5; line 2.75,20.75 13.25,14.65@8.2; line 17.75,14.5 17.75,21.25; line 14.4,17.9 21.1,17.9",
    "raise-hand": "line 7.25,14.25 7.25,5.6 10.25,5.6@1.5 10.25,11; line 10.25,6 10.25,4.4 13.25,4.4@1.5 13.25,11;"
                  " line 13.25,5.9 13.25,5.6 16.25,5.6@1.5 16.25,11.5;"
                  " line 16.25,9.5 16.25,8.75 19.25,8.75@1.5 19.25,14.25 7.9,18.25@6.9 3.9,12.9 6.3,11.2@1.55 7.25,12.5",

    # calls and media
    "phone": "loop 3.5,5.25 5.25,3.5@1.75 8.4,3.5:1.25 10.1,8:1.25 8,10.1 13.9,16@-11 16,13.9:1.25 20.5,15.6:1.25"
             " 20.5,18.75 18.75,20.5@1.75 3.5,5.25@15.25",
    "phone-filled": "fill use phone",
    "end-call": "turn 135; scale 0.81; use phone-filled",
    "microphone": "box 8.5,2.75 7,12 3.5; line 5,11.25 19,11.25@-7; line 12,18.25 12,21.25",
    "microphone-filled": "block 8.5,2.75 7,12 3.5; line 5,11.25 19,11.25@-7; line 12,18.25 12,21.25",
    "microphone-muted": "slash; use microphone",
    "microphone-muted-filled": "slash; use microphone-filled",
    "mute": "use microphone-muted",
    "speaker": "loop 2.9,8.75:1 6.5,8.75 11.75,4.5:1 11.75,19.5:1 6.5,15.25 2.9,15.25:1;"
               " arc 11.25,12 4.6 -42 42; arc 11.25,12 9 -42 42",
    "speaker-filled": "solid 2.9,8.75:1 6.5,8.75 11.75,4.5:1 11.75,19.5:1 6.5,15.25 2.9,15.25:1;"
                      " arc 11.25,12 4.6 -42 42; arc 11.25,12 9 -42 42",
    "speaker-muted": "loop 2.9,8.75:1 6.5,8.75 11.75,4.5:1 11.75,19.5:1 6.5,15.25 2.9,15.25:1;"
                     " line 15.75,9.25 21.25,14.75; line 21.25,9.25 15.75,14.75",
    "headset": "line 4,15.5 4,12 20,12@8 20,15.5; box 2.9,13.5 4.1,6 1.6; box 17,13.5 4.1,6 1.6;"
               " line 20,19.25 20,20.9:1 13.5,20.9",
    "video": "box 2.75,5.5 13,13 2.75; line 15.75,10.4 21.25,6.6:1 21.25,17.4:1 15.75,13.6",
    "video-filled": "block 2.75,5.5 13,13 2.75; solid 17.75,10.25 21.25,7.8:0.9 21.25,16.2:0.9 17.75,13.75",
    "video-off": "slash; use video",
    "video-off-filled": "slash; use video-filled",
    "share-screen": "box 2.75,3.75 18.5,13 2.5; line 8.25,20.5 15.75,20.5; line 12,13.25 12,7.25; line 9,10.25 12,7.25 15,10.25",
    "share-screen-filled": "block 2.75,3.75 18.5,13 2.5; line 8.25,20.5 15.75,20.5;"
                           " cut solid 12,7.5 14.25,10 12.5,10 12.5,13 11.5,13 11.5,10 9.75,10",
    "dialpad": "dot 5.75,4.75 1.6; dot 12,4.75 1.6; dot 18.25,4.75 1.6; dot 5.75,10.25 1.6; dot 12,10.25 1.6;"
               " dot 18.25,10.25 1.6; dot 5.75,15.75 1.6; dot 12,15.75 1.6; dot 18.25,15.75 1.6; dot 12,20.4 1.6",
    "play": "loop 6,3.25:1.75 20.75,12:1.75 6,20.75:1.75",
    "play-filled": "fill use play",
    "pause": "box 5,4 4.25,16 1.25; box 14.75,4 4.25,16 1.25",
    "pause-filled": "block 5.25,4 3.75,16 1; block 15,4 3.75,16 1",
    "stop": "box 4.25,4.25 15.5,15.5 2.5",
    "stop-filled": "block 4.25,4.25 15.5,15.5 2.5",
    "record": "ring 12,12 9.25; ring 12,12 4.25",
    "record-filled": "ring 12,12 9.25; disc 12,12 4.75",
    "eye": "loop 2.75,12 21.25,12@11 2.75,12@11; ring 12,12 2.9",
    "eye-off": "slash; use eye",

    # window buttons
    "window-minimize": "line 5.5,12 18.5,12",
    "window-maximize": "box 5.25,5.25 13.5,13.5 1.5",
    "window-restore": "box 4.5,8.25 11.25,11.25 1.5; line 8.75,4.5 18,4.5:1.5 19.5,4.5:1.5 19.5,15.25",

    # frames of the typing animation
    "typing-1": "dot 5.5,10 2.1; dot 12,12 1.6; dot 18.5,12 1.6",
    "typing-2": "dot 5.5,12 1.6; dot 12,10 2.1; dot 18.5,12 1.6",
    "typing-3": "dot 5.5,12 1.6; dot 12,12 1.6; dot 18.5,10 2.1",
    "typing-4": "dot 5.5,12 1.6; dot 12,12 1.6; dot 18.5,12 1.6",

    "logo": "block 2.75,2.75 18.5,18.5 5; cut line 8.75,6.75 8.75,16.5 15.75,16.5; cut dot 15.5,8.5 1.9",
}

BOLD = """
    arrow-down arrow-left arrow-right arrow-up attachment bell bookmark calendar camera chat check
    chevron-down chevron-left chevron-right chevron-up close emoji-happy eye eye-off favorite filter
    flag folder grid heart home info link list lock mail menu microphone microphone-muted minus
    more-horizontal more-vertical pen phone pin plus search settings share-screen speaker speaker-muted
    star user users video video-off
""".split()


# --- Centre lines: segments (start, end, centre or None, +1 clockwise or -1) ----------------------


def sub(a, b):
    return a[0] - b[0], a[1] - b[1]


def along(p, direction, distance):
    return p[0] + direction[0] * distance, p[1] + direction[1] * distance


def unit(v):
    length = math.hypot(*v)
    return v[0] / length, v[1] / length


def polar(centre, radius, degrees):
    angle = math.radians(degrees)
    return centre[0] + radius * math.cos(angle), centre[1] + radius * math.sin(angle)


def straight(start, end):
    return (start, end, None, 0)


def tangent(segment, at_end):
    """The direction of travel at one end of a segment."""
    start, end, centre, turn = segment
    if centre is None:
        return unit(sub(end, start))
    x, y = unit(sub(end if at_end else start, centre))
    return (-y * turn, x * turn)


def reverse(segments):
    return [(end, start, centre, -turn) for start, end, centre, turn in reversed(segments)]


def arc_to(start, end, radius, long_way):
    """An arc between two points; a radius below half the distance becomes half the distance."""
    turn = 1 if radius > 0 else -1
    half = math.dist(start, end) / 2
    height = math.sqrt(max(radius * radius - half * half, 0))
    middle = ((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)
    x, y = unit(sub(end, start))
    side = turn * (-1 if long_way else 1)
    return (start, end, along(middle, (-y * side, x * side), height), turn)


def parse_point(text):
    match = re.fullmatch(r"(-?[\d.]+),(-?[\d.]+)(?::([\d.]+))?(?:@(-?[\d.]+)(!)?)?", text)
    if not match:
        raise SystemExit(f"not a point: {text}")
    x, y, fillet, radius, long_way = match.groups()
    return (float(x), float(y)), float(fillet or 0), float(radius or 0), bool(long_way)


def centre_line(points, closed):
    """Segments through parsed points, corners rounded as they ask."""
    nodes = points + points[:1] if closed else points
    segments, fillets = [], []
    for (start, _, _, _), (end, fillet, radius, long_way) in zip(nodes, nodes[1:]):
        if math.dist(start, end) > 1e-9:
            segments.append(arc_to(start, end, radius, long_way) if radius else straight(start, end))
            fillets.append(fillet)
    count = len(segments)
    rounded = []
    trimmed = list(segments)
    for index in range(count if closed else count - 1):
        following = (index + 1) % count
        before, after, radius = trimmed[index], trimmed[following], fillets[index]
        corner = None
        if radius and before[2] is None and after[2] is None:
            corner = round_corner(before, after, radius)
            trimmed[index] = straight(before[0], corner[0])
            trimmed[following] = straight(corner[1], after[1])
        rounded.append(corner)
    result = []
    for index, segment in enumerate(trimmed):
        if math.dist(segment[0], segment[1]) > 1e-9:
            result.append(segment)
        if index < len(rounded) and rounded[index]:
            result.append(rounded[index])
    return result


def round_corner(before, after, radius):
    corner = before[1]
    incoming, outgoing = tangent(before, True), tangent(after, False)
    cross = incoming[0] * outgoing[1] - incoming[1] * outgoing[0]
    angle = math.atan2(abs(cross), incoming[0] * outgoing[0] + incoming[1] * outgoing[1])
    reach = radius * math.tan(angle / 2)
    turn = 1 if cross > 0 else -1
    start = along(corner, incoming, -reach)
    centre = along(start, (-incoming[1] * turn, incoming[0] * turn), radius)
    return (start, along(corner, outgoing, reach), centre, turn)


def circle(centre, radius):
    left, right = (centre[0] - radius, centre[1]), (centre[0] + radius, centre[1])
    return [(left, right, centre, 1), (right, left, centre, 1)]


def rectangle(x, y, width, height, radius):
    corners = ((x, y), (x + width, y), (x + width, y + height), (x, y + height))
    return centre_line([(corner, radius, 0.0, False) for corner in corners], True)


def polygon(points, radii):
    return centre_line([(point, radius, 0.0, False) for point, radius in zip(points, radii)], True)


def gear(centre, outer, inner, count):
    points = []
    for tooth in range(count):
        middle = 360 / count * tooth - 90
        points += [polar(centre, inner, middle - 0.31 * 360 / count), polar(centre, outer, middle - 0.19 * 360 / count),
                   polar(centre, outer, middle + 0.19 * 360 / count), polar(centre, inner, middle + 0.31 * 360 / count)]
    return polygon(points, (0.0, 0.8, 0.8, 0.0) * count)


def star(centre, outer, inner, count):
    points = [polar(centre, inner if index % 2 else outer, 180 / count * index - 90) for index in range(2 * count)]
    return polygon(points, (1.0, 0.0) * count)


# --- Outlines -----------------------------------------------------------------------------------


def offset(segment, distance):
    """The segment moved sideways, to the left of its direction; None when nothing of an arc is left."""
    start, end, centre, turn = segment
    if centre is None:
        x, y = tangent(segment, False)
        return (along(start, (y, -x), distance), along(end, (y, -x), distance), None, 0)
    radius = math.dist(centre, start)
    moved = radius + distance * turn
    if moved < 0.02:
        return None
    return (along(centre, unit(sub(start, centre)), moved), along(centre, unit(sub(end, centre)), moved), centre, turn)


def crossings(one, other):
    """Where the whole lines or circles of two segments meet."""
    if one[2] is None and other[2] is None:
        (x, y), (u, v) = sub(one[1], one[0]), sub(other[1], other[0])
        cross = x * v - y * u
        if abs(cross) < 1e-12:
            return []
        dx, dy = sub(other[0], one[0])
        t = (dx * v - dy * u) / cross
        return [(one[0][0] + x * t, one[0][1] + y * t)]
    if one[2] is None:
        return line_circle(one, other[2], math.dist(other[2], other[0]))
    if other[2] is None:
        return line_circle(other, one[2], math.dist(one[2], one[0]))
    radius, other_radius = math.dist(one[2], one[0]), math.dist(other[2], other[0])
    distance = math.dist(one[2], other[2])
    if distance < 1e-9:
        return []
    reach = (radius ** 2 - other_radius ** 2 + distance ** 2) / (2 * distance)
    height = radius ** 2 - reach ** 2
    if height < 0:
        return []
    x, y = unit(sub(other[2], one[2]))
    foot = along(one[2], (x, y), reach)
    return [along(foot, (-y, x), math.sqrt(height)), along(foot, (y, -x), math.sqrt(height))]


def line_circle(line, centre, radius):
    direction = unit(sub(line[1], line[0]))
    to_centre = sub(centre, line[0])
    foot = along(line[0], direction, to_centre[0] * direction[0] + to_centre[1] * direction[1])
    height = radius ** 2 - math.dist(foot, centre) ** 2
    if height < 0:
        return []
    return [along(foot, direction, math.sqrt(height)), along(foot, direction, -math.sqrt(height))]


def side(segments, distance, closed):
    """The left side of a centre line: round outside its corners, the lines' crossing inside them."""
    moved = [(offset(segment, distance), segment) for segment in segments]
    moved = [(parallel, segment) for parallel, segment in moved if parallel]
    result = [parallel for parallel, _ in moved]
    joins = {}
    count = len(result)
    for index in range(count if closed else count - 1):
        following = (index + 1) % count
        end, start = result[index][1], result[following][0]
        corner = moved[index][1][1]
        if math.dist(end, start) < 1e-6:
            continue
        incoming, outgoing = tangent(moved[index][1], True), tangent(moved[following][1], False)
        if incoming[0] * outgoing[1] - incoming[1] * outgoing[0] > 0:
            joins[index] = (end, start, corner, 1)
            continue
        met = crossings(result[index], result[following])
        if met:
            point = min(met, key=lambda candidate: math.dist(candidate, corner))
            result[index] = (result[index][0], point, *result[index][2:])
            result[following] = (point, *result[following][1:])
        else:
            joins[index] = straight(end, start)
    outline = []
    for index, segment in enumerate(result):
        outline.append(segment)
        if index in joins:
            outline.append(joins[index])
    return outline


def stroke(segments, closed, width):
    left = side(segments, width / 2, closed)
    right = side(reverse(segments), width / 2, closed)
    if closed:
        return [left, right]
    start_cap = (right[-1][1], left[0][0], segments[0][0], 1)
    end_cap = (left[-1][1], right[0][0], segments[-1][1], 1)
    return [left + [end_cap] + right + [start_cap]]


def area(contour):
    """Signed: positive for a clockwise contour."""
    total = 0.0
    for start, end, centre, turn in contour:
        total += (start[0] * end[1] - end[0] * start[1]) / 2
        if centre is not None:
            radius, sweep = math.dist(centre, start), sweep_of(start, end, centre, turn)
            total += turn * radius ** 2 * (sweep - math.sin(sweep)) / 2
    return total


def sweep_of(start, end, centre, turn):
    """The angle an arc runs through, in radians."""
    begin = math.atan2(start[1] - centre[1], start[0] - centre[0])
    finish = math.atan2(end[1] - centre[1], end[0] - centre[0])
    return (finish - begin) * turn % (2 * math.pi)


def solid(segments, width):
    return [max(stroke(segments, True, width), key=area)]


def bounds(contour):
    xs, ys = [], []
    for start, end, centre, turn in contour:
        xs += [start[0], end[0]]
        ys += [start[1], end[1]]
        if centre is not None:
            radius, sweep = math.dist(centre, start), sweep_of(start, end, centre, turn)
            for degrees in (0, 90, 180, 270):
                extreme = polar(centre, radius, degrees)
                if sweep_of(start, extreme, centre, turn) <= sweep:
                    xs.append(extreme[0])
                    ys.append(extreme[1])
    return min(xs), min(ys), max(xs), max(ys)


def distance_along(segment, point):
    """How far along a segment a point of its line or circle is; negative before a line's start."""
    start, end, centre, turn = segment
    if centre is not None:
        return math.dist(centre, start) * sweep_of(start, point, centre, turn)
    x, y = tangent(segment, False)
    return (point[0] - start[0]) * x + (point[1] - start[1]) * y


def middle_of(segment):
    start, end, centre, turn = segment
    if centre is None:
        return (start[0] + end[0]) / 2, (start[1] + end[1]) / 2
    angle = math.atan2(start[1] - centre[1], start[0] - centre[0]) + turn * sweep_of(*segment) / 2
    return polar(centre, math.dist(centre, start), math.degrees(angle))


def clip(contour, point, normal):
    """The part of a contour on the side of a line that its normal points to."""
    border = straight(point, along(point, (-normal[1], normal[0]), 1))
    kept = []
    for segment in contour:
        start, end, centre, turn = segment
        length = distance_along(segment, end)
        cuts = sorted((distance_along(segment, p), p) for p in crossings(segment, border))
        stops = [start, *(p for distance, p in cuts if 1e-6 < distance < length - 1e-6), end]
        for piece in ((a, b, centre, turn) for a, b in zip(stops, stops[1:])):
            x, y = sub(middle_of(piece), point)
            if x * normal[0] + y * normal[1] > 0:
                kept.append(piece)
    result = []
    for piece, following in zip(kept, kept[1:] + kept[:1]):
        result.append(piece)
        if math.dist(piece[1], following[0]) > 1e-6:
            result.append(straight(piece[1], following[0]))
    return result


def strike(contours, width):
    """A diagonal stroke from the top left, with a gap as wide as a pen on either side."""
    direction = unit((1, 1))
    normal = (direction[1], -direction[0])
    result = []
    for sign in (1, -1):
        away = (normal[0] * sign, normal[1] * sign)
        edge = along(CENTRE, away, width * 0.5 + 1.0)
        result += [part for part in (clip(contour, edge, away) for contour in contours) if part]
    inset = MARGIN + width / 2 + 0.25
    return result + stroke([straight((inset, inset), (24 - inset, 24 - inset))], False, width)


# --- Statements ---------------------------------------------------------------------------------


def numbers(text):
    return tuple(float(number) for number in text.split(","))


def transformed(segments, angle, factor, mirrored):
    def place(p):
        if p is None:
            return None
        x, y = (p[0] - CENTRE[0]) * factor, (p[1] - CENTRE[1]) * factor
        if mirrored:
            x = -x
        cos, sin = math.cos(math.radians(angle)), math.sin(math.radians(angle))
        return CENTRE[0] + x * cos - y * sin, CENTRE[1] + x * sin + y * cos

    return [(place(start), place(end), place(centre), -turn if mirrored else turn)
            for start, end, centre, turn in segments]


def centre_lines(verb, arguments):
    """(segments, closed, filled) for each stroke of one statement."""
    if verb in ("line", "loop", "solid"):
        closed = verb != "line"
        yield centre_line([parse_point(point) for point in arguments], closed), closed, verb == "solid"
    elif verb in ("ring", "disc"):
        yield circle(numbers(arguments[0]), float(arguments[1])), True, verb == "disc"
    elif verb in ("box", "block"):
        yield rectangle(*numbers(arguments[0]), *numbers(arguments[1]), float(arguments[2])), True, verb == "block"
    elif verb == "arc":
        centre, radius, begin, finish = numbers(arguments[0]), *map(float, arguments[1:])
        ends = polar(centre, radius, begin), polar(centre, radius, finish)
        yield [(*ends, centre, 1 if finish > begin else -1)], False, False
    elif verb == "rays":
        centre, begin, finish = numbers(arguments[0]), float(arguments[1]), float(arguments[2])
        count = int(arguments[3])
        for index in range(count):
            ends = (polar(centre, radius, 360 / count * index) for radius in (begin, finish))
            yield [straight(*ends)], False, False
    elif verb in ("gear", "star"):
        shape = gear if verb == "gear" else star
        yield shape(numbers(arguments[0]), float(arguments[1]), float(arguments[2]), int(arguments[3])), True, False
    else:
        raise SystemExit(f"unknown statement: {verb}")


class Drawing:
    def __init__(self, width):
        self.width = width
        self.contours = []

    def run(self, text, angle=0.0, factor=1.0, mirrored=False, filled=False):
        struck = False
        for statement in filter(None, (part.split() for part in text.split(";"))):
            cut = statement[0] == "cut"
            fill = filled or statement[0] == "fill"
            verb, *arguments = statement[1:] if statement[0] in ("cut", "fill") else statement
            if verb == "turn":
                angle += float(arguments[0])
            elif verb == "scale":
                factor *= float(arguments[0])
            elif verb == "mirror":
                mirrored = not mirrored
            elif verb == "slash":
                struck = True
            elif verb == "use":
                self.run(ICONS[arguments[0]], angle, factor, mirrored, fill)
            else:
                added = self.statement(verb, arguments, (angle, factor, mirrored), fill)
                self.contours += [reverse(contour) for contour in added] if cut else added
        if struck:
            self.contours = strike(self.contours, self.width)

    def statement(self, verb, arguments, placing, fill):
        inwards = (12 - MARGIN - self.width / 2) / (12 - MARGIN - PEN / 2)
        angle, factor, mirrored = placing
        contours = []
        if verb == "dot":
            radius = float(arguments[1]) if len(arguments) > 1 else 1.1
            [(start, _, centre, _), _] = transformed(circle(numbers(arguments[0]), 1.0), angle, factor * inwards, mirrored)
            return [circle(centre, (radius + (self.width - PEN) * 0.4) * factor)]
        for segments, closed, is_solid in centre_lines(verb, arguments):
            placed = transformed(segments, angle, factor * inwards, mirrored)
            contours += solid(placed, self.width) if closed and (is_solid or fill) else stroke(placed, closed, self.width)
        return contours


# --- Files --------------------------------------------------------------------------------------


def number(value):
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def path_data(contour):
    start = contour[0][0]
    parts = [f"M{number(start[0])} {number(start[1])}"]
    for begin, end, centre, turn in contour:
        where = f"{number(end[0])} {number(end[1])}"
        if centre is None:
            parts.append(f"L{where}")
        else:
            radius = number(math.dist(centre, begin))
            long_way = int(sweep_of(begin, end, centre, turn) > math.pi)
            parts.append(f"A{radius} {radius} 0 {long_way} {int(turn > 0)} {where}")
    return "".join(parts) + "Z"


def icons():
    names = {name: (text, PEN) for name, text in ICONS.items()}
    names.update({f"{name}-bold": (ICONS[name], BOLD_PEN) for name in BOLD})
    return dict(sorted(names.items()))


def draw(name, text, width):
    drawing = Drawing(width)
    drawing.run(text)
    boxes = [bounds(contour) for contour in drawing.contours]
    left, top = min(box[0] for box in boxes), min(box[1] for box in boxes)
    right, bottom = max(box[2] for box in boxes), max(box[3] for box in boxes)
    if min(left, top) < MARGIN - 0.005 or max(right, bottom) > 24 - MARGIN + 0.005:
        raise SystemExit(f"{name} leaves the margin: {left:.2f} {top:.2f} {right:.2f} {bottom:.2f}")
    data = "\n".join(path_data(contour) for contour in drawing.contours)
    return f'<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24" viewBox="0 0 24 24">\n<path d="{data}"/>\n</svg>\n'


def main():
    parser = argparse.ArgumentParser(description="Draws the gallery's icons.")
    parser.add_argument("--check", action="store_true", help="compare with the files on disk, write nothing")
    options = parser.parse_args()

    problems = []
    written = {f"{name}.svg": draw(name, *what) for name, what in icons().items()}
    for name, text in written.items():
        path = HERE / name
        if not options.check:
            path.write_text(text, encoding="utf-8")
        elif not path.exists() or path.read_text(encoding="utf-8") != text:
            problems.append(f"{name} differs from the table; run {Path(__file__).name}")
    problems += [f"{path.name} is not in the table" for path in sorted(HERE.glob("*.svg")) if path.name not in written]
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
