# The bitmaps of the library: resource key | file in resources/bitmaps. Keys are matched without regard to case.
set(KELD_BITMAPS
    "KELD(16X16)|KELD_16X16.bmp"
    "KELD(32X32)|KELD_32X32.bmp"
    "TE:SEQ(32X16)|TE_SEQ_32X16.bmp"
    "TE:SEQ(32X16)_WHT|TE_SEQ_32X16_WHT.bmp"
    "TE:GROUP(16X16)|TE_GROUP_16X16.bmp"
    "TE:GROUP(16X16)_WHT|TE_GROUP_16X16_WHT.bmp"
    "TE:ITEM(16X16)|TE_ITEM_16X16.bmp"
    "TE:ITEM(16X16)_WHT|TE_ITEM_16X16_WHT.bmp"
    "TE:MV(32X16)|TE_MV_32X16.bmp"
    "TE:PE(32X16)|TE_PE_32X16.bmp"
    "TE:PE(32X16)_WHT|TE_PE_32X16_WHT.bmp"
    "TE:ELC(32X16)|TE_ELC_32X16.bmp"
    "TE:ENC(32X16)|TE_ENC_32X16.bmp"
    "TE:ALC(32X16)|TE_ALC_32X16.bmp"
    "TE:CUR(32X16)|TE_CUR_32X16.bmp"
    "TE:PLC(32X16)|TE_PLC_32X16.bmp"
    "TE:PLC(32X16)_WHT|TE_PLC_32X16_WHT.bmp"
    "TE:ISO(32X16)|TE_ISO_32X16.bmp"
    "TAB:MTIDATA|TAB_MTIDATA.bmp")
set(KELD_BITMAP_FOLDER "${CMAKE_CURRENT_LIST_DIR}/bitmaps")
