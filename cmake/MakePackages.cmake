# Makes a zip and an installer of the files that CPack has collected. Their bytes depend only on the files and on the date of
# the commit (or SOURCE_DATE_EPOCH).
set(epoch $ENV{SOURCE_DATE_EPOCH})
if(NOT epoch)
    execute_process(
        COMMAND git -C ${CPACK_HUEVOX_SOURCE} log -1 --format=%ct
        OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()

set(folder ${CPACK_TEMPORARY_DIRECTORY})
file(GLOB files RELATIVE ${folder} ${folder}/*)
list(SORT files)

set(name ${CPACK_PACKAGE_DIRECTORY}/Huevox-${CPACK_PACKAGE_VERSION})
set(zip ${name}-windows-x64.zip)
set(setup ${name}-setup.exe)
file(REMOVE ${zip} ${setup})

# The installer's side picture.
set(picture ${CPACK_TOPLEVEL_DIRECTORY}/side)
execute_process(
    COMMAND rsvg-convert --width=96 --height=96 --page-width=164 --page-height=314 --left=34 --top=109
        --background-color=white --output=${picture}.png ${CPACK_HUEVOX_SOURCE}/resources/icons/huevox.svg
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND convert ${picture}.png -alpha off BMP3:${picture}.bmp COMMAND_ERROR_IS_FATAL ANY)

# Both contain the dates of their files; a zip as local time.
execute_process(
    COMMAND touch --date=@${epoch} ${files} ${picture}.bmp WORKING_DIRECTORY ${folder} COMMAND_ERROR_IS_FATAL ANY)
set(ENV{TZ} UTC)
execute_process(COMMAND zip -q -X -9 ${zip} ${files} WORKING_DIRECTORY ${folder} COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND makensis -V2 -WX -NOCD -DVERSION=${CPACK_PACKAGE_VERSION} -DFILES=${folder} -DICON=${CPACK_HUEVOX_ICON}
        -DPICTURE=${picture}.bmp -DOUTPUT=${setup} ${CPACK_HUEVOX_SOURCE}/installer/Huevox.nsi
    COMMAND_ERROR_IS_FATAL ANY)
